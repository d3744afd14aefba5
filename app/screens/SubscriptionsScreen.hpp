#pragma once
// The subscriptions found in the ledger: a table with their frequency, latest charge, monthly
// and yearly cost, next expected charge and any price rise, and for the one selected the two
// choices the user has: "Non è un abbonamento" (hidden for good) and "Rendi ricorrente".

#include <QWidget>

#include "app/model/LedgerViewModel.hpp"

class QLabel;
class QPushButton;
class QStackedWidget;
class QTreeView;

namespace vantello::app {

class SubscriptionListModel;

class SubscriptionsScreen : public QWidget {
    Q_OBJECT
public:
    explicit SubscriptionsScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    [[nodiscard]] const SubscriptionListModel& listModel() const { return *subscriptions_; }

public Q_SLOTS:
    void ignoreSelected();
    void makeSelectedRecurring();

private:
    [[nodiscard]] std::optional<std::string> selectedKey() const;
    void updateActions();
    void fitColumns();
    void showOutcome(const std::optional<QString>& error, const QString& done);

    LedgerViewModel& model_;
    SubscriptionListModel* subscriptions_;
    QStackedWidget* pages_;
    QLabel* total_ = nullptr;
    QTreeView* table_;
    QPushButton* ignore_;
    QPushButton* recurring_;
    QLabel* message_;
};

}  // namespace vantello::app
