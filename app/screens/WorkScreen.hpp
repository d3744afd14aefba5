#pragma once
// The work screen: the period without work in progress and the way out of it, every period
// without work with adding, changing and deleting, what the ledger says about the salary, and
// the salary reminder's settings with the state of the desktop's notifications.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Uuid.hpp"

#include <QWidget>

#include <optional>

class QCheckBox;
class QLabel;
class QListView;
class QPushButton;
class QSpinBox;
class QStackedWidget;

namespace vantello::app {

class WorkPeriodsModel;

class WorkScreen : public QWidget {
    Q_OBJECT
public:
    explicit WorkScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    [[nodiscard]] WorkPeriodsModel& listModel() const { return *periods_; }
    [[nodiscard]] std::optional<Uuid> selectedPeriodID() const;

public Q_SLOTS:
    // Ends the period in progress today.
    void resumeWork();
    void addPeriod();
    void editSelected();
    // Asks, then deletes the selected period.
    void deleteSelected();

private:
    // The line shown while the desktop's notifications are off, as the model knows it.
    void showNotificationState();
    void showStatus();
    void showReminder();
    void storeReminder();
    void showSelection();

    LedgerViewModel& model_;
    WorkPeriodsModel* periods_;
    QLabel* ongoingLabel_;
    QPushButton* resumeButton_;
    QLabel* lastSalaryLabel_;
    QLabel* thisMonthLabel_;
    QStackedWidget* periodPages_;
    QListView* list_;
    QPushButton* editButton_;
    QPushButton* deleteButton_;
    QCheckBox* reminderCheck_;
    QSpinBox* daySpin_;
    QSpinBox* hourSpin_;
    QLabel* nextReminderLabel_;
    QLabel* notificationLabel_;
};

}  // namespace vantello::app
