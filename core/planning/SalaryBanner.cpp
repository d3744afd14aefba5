#include "core/planning/SalaryBanner.hpp"

#include "core/base/Localization.hpp"
#include "core/planning/WorkStatus.hpp"

namespace vantello {

namespace {

bool putOffToday(const std::optional<Instant>& day, Instant now, const Calendar& calendar) {
    return day && calendar.startOfDay(*day) >= calendar.startOfDay(now);
}

}  // namespace

std::optional<std::string> salaryBanner(const SalaryBannerSettings& settings,
                                        const std::vector<UnemploymentPeriod>& periods,
                                        const SharedList<Transaction>& transactions, Instant now,
                                        const Calendar& calendar) {
    const SalaryReminder& reminder = settings.reminder;
    if (!reminder.isEnabled) return std::nullopt;
    if (putOffToday(settings.dismissedDay, now, calendar) || putOffToday(settings.postponedDay, now, calendar)) {
        return std::nullopt;
    }
    if (calendar.civilDate(now).day < reminder.day) return std::nullopt;
    if (salaryRecordedInMonth(transactions, now, calendar) || isUnemployed(periods, now, calendar)) {
        return std::nullopt;
    }
    return L10n::tr("È passato il giorno dello stipendio (il {giorno}): non l'hai ancora registrato questo mese.",
                    {{"giorno", std::to_string(reminder.day)}});
}

}  // namespace vantello
