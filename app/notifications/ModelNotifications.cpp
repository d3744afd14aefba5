#include "app/notifications/ModelNotifications.hpp"

#include "core/planning/SalaryReminder.hpp"

#include <algorithm>
#include <chrono>

namespace vantello::app {

ModelNotifications::ModelNotifications(LedgerViewModel& model, NotificationService& service, QObject* parent)
    : QObject(parent), model_(model), salary_(service, model.preferences(), [&model] { return model.now(); }),
      alerts_(service, model.preferences()) {
    if (!model_.isDemo()) salary_.showMissed(model_.ledger().transactions(), model_.calendar());
    refresh();
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &ModelNotifications::refresh);
    connect(&model_, &LedgerViewModel::demoChanged, this, &ModelNotifications::refresh);
    connect(&model_, &LedgerViewModel::salaryReminderChanged, this, &ModelNotifications::rescheduleSalaryReminder);
    connect(&model_, &LedgerViewModel::alertSettingsChanged, this, &ModelNotifications::refresh);
    // The reminder just shown is over: the next one comes after it, even within the same second.
    connect(&salary_, &SalaryNotifier::reminded, this,
            [this](Instant shown) { scheduleFrom(std::max(model_.now(), shown + std::chrono::seconds(1))); });
}

void ModelNotifications::rescheduleSalaryReminder() {
    if (!model_.isDemo()) scheduleFrom(model_.now());
}

void ModelNotifications::refresh() {
    if (model_.isDemo()) return;
    scheduleFrom(model_.now());
    alerts_.postAlerts(model_.alerts());
}

void ModelNotifications::scheduleFrom(Instant from) {
    const Ledger& ledger = model_.ledger();
    salary_.schedule(nextSalaryReminder(model_.salaryReminder(), ledger.unemploymentPeriods(),
                                        ledger.transactions(), from, model_.calendar()));
}

}  // namespace vantello::app
