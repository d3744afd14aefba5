#pragma once
// Keeps the desktop notifications in step with the application model: at start and after every
// change of the ledger, the salary reminder is rescheduled and new smart alerts are notified.
// The demo's sample ledger notifies nothing. One per model, made once the model has loaded.

#include "app/model/LedgerViewModel.hpp"
#include "app/notifications/AlertNotifier.hpp"
#include "app/notifications/NotificationService.hpp"
#include "app/notifications/SalaryNotifier.hpp"

#include <QObject>

namespace vantello::app {

class ModelNotifications : public QObject {
    Q_OBJECT

public:
    // Shows a salary reminder missed while the application was closed, schedules the next one and
    // notifies the alerts of the ledger just loaded.
    ModelNotifications(LedgerViewModel& model, NotificationService& service, QObject* parent = nullptr);

    // After the salary reminder's settings changed (the model's signal calls it too).
    void rescheduleSalaryReminder();

private:
    void refresh();
    // The first reminder from `from` on, with the reminder's settings and the ledger.
    void scheduleFrom(Instant from);

    LedgerViewModel& model_;
    SalaryNotifier salary_;
    AlertNotifier alerts_;
};

}  // namespace vantello::app
