#pragma once
// The smart alerts: the ones of today, each with its dismissal, and what the user wants to be
// warned about: a switch per kind of alert, the low-balance threshold of each account, and
// whether new alerts also arrive as desktop notifications.

#include <QWidget>

#include "app/model/LedgerViewModel.hpp"

#include <map>
#include <string>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QVBoxLayout;

namespace vantello::app {

class AlertsScreen : public QWidget {
    Q_OBJECT
public:
    explicit AlertsScreen(LedgerViewModel& model, QWidget* parent = nullptr);

private:
    void rebuildAlerts();
    void rebuildThresholds();
    void showSettings();
    void applyThreshold(const std::string& accountID, QLineEdit* edit);

    LedgerViewModel& model_;
    QStackedWidget* alertPages_;
    QVBoxLayout* alertsLayout_;
    std::map<SmartAlert::Kind, QCheckBox*> kinds_;
    QCheckBox* notifications_;
    QFormLayout* thresholds_;
    QString thresholdAccounts_;  // the accounts the threshold rows were built for
    QLabel* thresholdError_;
};

// The name of a kind of alert, as the switches show it.
[[nodiscard]] QString alertKindText(SmartAlert::Kind kind);

}  // namespace vantello::app
