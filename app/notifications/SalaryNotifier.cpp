#include "app/notifications/SalaryNotifier.hpp"

#include "core/base/Iso8601.hpp"
#include "core/base/Localization.hpp"
#include "core/planning/WorkStatus.hpp"

#include <algorithm>
#include <chrono>

namespace vantello::app {

namespace {

const QString pendingKey = QStringLiteral("salaryReminderPending");

// The timer's clock stops while the machine sleeps: a wait this short keeps a reminder due
// during a suspension from coming much later than the clock on the wall says.
constexpr std::chrono::milliseconds longestWait = std::chrono::hours(1);

}  // namespace

SalaryNotifier::SalaryNotifier(NotificationService& service, Preferences& preferences, std::function<Instant()> now,
                               QObject* parent)
    : QObject(parent), service_(service), preferences_(preferences),
      now_(now ? std::move(now) : std::function<Instant()>(clockNow)) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &SalaryNotifier::wait);
}

std::optional<Instant> SalaryNotifier::pending() const {
    return Iso8601::parse(preferences_.value(pendingKey).toString().toStdString());
}

void SalaryNotifier::schedule(std::optional<Instant> moment) {
    timer_.stop();
    if (!moment) {
        preferences_.remove(pendingKey);
        return;
    }
    preferences_.setValue(pendingKey, QString::fromStdString(Iso8601::format(*moment)));
    wait();
}

void SalaryNotifier::wait() {
    const std::optional<Instant> moment = pending();
    if (!moment) return;
    const Instant now = now_();
    if (*moment <= now) {
        remind(*moment);
        return;
    }
    timer_.start(std::min<std::chrono::milliseconds>(*moment - now, longestWait));
}

void SalaryNotifier::showMissed(const SharedList<Transaction>& transactions, const Calendar& calendar) {
    const std::optional<Instant> moment = pending();
    if (!moment || *moment > now_()) return;
    if (salaryRecordedInMonth(transactions, *moment, calendar)) {
        schedule(std::nullopt);
        return;
    }
    remind(*moment);
}

void SalaryNotifier::remind(Instant moment) {
    schedule(std::nullopt);
    service_.notify({
        .summary = QString::fromStdString(L10n::tr("È il giorno dello stipendio")),
        .body = QString::fromStdString(
            L10n::tr("Registra lo stipendio in Vantello: l'importo dell'ultimo è già pronto.")),
        .icon = QStringLiteral("appointment-soon"),
    });
    Q_EMIT reminded(moment);
}

}  // namespace vantello::app
