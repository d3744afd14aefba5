#pragma once
// The salary reminder as a desktop notification, timed inside the running application. There is
// at most one pending reminder; its moment is also kept in the preferences, so that a reminder
// whose moment passed while the application was closed is shown at the next start.

#include "app/notifications/NotificationService.hpp"
#include "app/settings/Preferences.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/SharedList.hpp"
#include "core/ledger/Transaction.hpp"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

namespace vantello::app {

class SalaryNotifier : public QObject {
    Q_OBJECT

public:
    // `now` is the clock; the system's when empty.
    SalaryNotifier(NotificationService& service, Preferences& preferences, std::function<Instant()> now = {},
                   QObject* parent = nullptr);

    // Replaces the pending reminder with one at `moment`; nothing leaves none pending.
    void schedule(std::optional<Instant> moment);
    [[nodiscard]] std::optional<Instant> pending() const;

    // At start: shows the reminder whose moment passed while the application was closed, unless
    // the salary of its month has been recorded since. Either way it is no longer pending.
    void showMissed(const SharedList<Transaction>& transactions, const Calendar& calendar);

Q_SIGNALS:
    // The reminder of `moment` has been shown and nothing is pending any more.
    void reminded(Instant moment);

private:
    // Waits for the pending moment in steps, checking the clock after each one.
    void wait();
    void remind(Instant moment);

    NotificationService& service_;
    Preferences& preferences_;
    std::function<Instant()> now_;
    QTimer timer_{this};
};

}  // namespace vantello::app
