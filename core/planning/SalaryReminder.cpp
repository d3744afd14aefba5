#include "core/planning/SalaryReminder.hpp"

#include "core/base/JsonFields.hpp"
#include "core/planning/WorkStatus.hpp"

#include <algorithm>
#include <tuple>

namespace vantello {

namespace {

constexpr int monthsLookedAhead = 12;

// The reminder day of the month starting at `monthStart` (or the next date with that day number)
// at the reminder's hour.
std::optional<Instant> reminderIn(Instant monthStart, const SalaryReminder& reminder, const Calendar& calendar) {
    const std::optional<Instant> day = calendar.nextDayWithDayOfMonth(monthStart, reminder.day);
    if (!day) return std::nullopt;
    return calendar.date(calendar.civilDate(*day), reminder.hour);
}

const auto salaryReminderFields = std::tuple{
    JsonFields::required("isEnabled", &SalaryReminder::isEnabled),
    JsonFields::required("day", &SalaryReminder::day),
    JsonFields::required("hour", &SalaryReminder::hour),
};

}  // namespace

std::optional<Instant> nextSalaryReminder(const SalaryReminder& reminder,
                                          const std::vector<UnemploymentPeriod>& periods,
                                          const SharedList<Transaction>& transactions, Instant now,
                                          const Calendar& calendar) {
    if (!reminder.isEnabled || !reminder.isValid()) return std::nullopt;
    if (std::ranges::any_of(periods, [](const UnemploymentPeriod& period) { return !period.end; })) return std::nullopt;
    const Instant thisMonth = calendar.monthInterval(now).start;
    for (int ahead = 0; ahead < monthsLookedAhead; ++ahead) {
        const std::optional<Instant> monthStart = calendar.adding(CalendarUnit::month, ahead, thisMonth);
        if (!monthStart) break;
        const std::optional<Instant> candidate = reminderIn(*monthStart, reminder, calendar);
        if (!candidate || *candidate < now) continue;
        if (ahead == 0 && salaryRecordedInMonth(transactions, now, calendar)) continue;
        if (isUnemployed(periods, *candidate, calendar)) continue;
        return candidate;
    }
    return std::nullopt;
}

void to_json(Json& json, const SalaryReminder& reminder) { JsonFields::write(json, reminder, salaryReminderFields); }

void from_json(const Json& json, SalaryReminder& reminder) {
    SalaryReminder read;
    JsonFields::read(json, read, salaryReminderFields);
    if (!read.isValid()) {
        JsonCoding::fail(read.day < 1 || read.day > 31 ? "day" : "hour", L10n::key("è fuori dall'intervallo"));
    }
    reminder = read;
}

}  // namespace vantello
