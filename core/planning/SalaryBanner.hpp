#pragma once
// The banner of the transactions screen on and after the salary day, while this month's salary
// is not recorded. It is shown whether or not the desktop lets the application notify.

#include "core/base/Calendar.hpp"
#include "core/base/SharedList.hpp"
#include "core/ledger/Transaction.hpp"
#include "core/ledger/UnemploymentPeriod.hpp"
#include "core/planning/SalaryReminder.hpp"

#include <optional>
#include <string>
#include <vector>

namespace vantello {

// The user's choices about the banner.
struct SalaryBannerSettings {
    SalaryReminder reminder;
    std::optional<Instant> dismissedDay;  // the day it was last dismissed ("salaryReminderDismissedDay")
    std::optional<Instant> postponedDay;  // the day it was put off while the application runs
};

// The banner's text when it is due: the reminder is on, it was neither dismissed nor put off
// today (or later), today's day of the month has reached the reminder's day, no salary is
// recorded this month and today is a working day. Nothing otherwise.
[[nodiscard]] std::optional<std::string> salaryBanner(const SalaryBannerSettings& settings,
                                                      const std::vector<UnemploymentPeriod>& periods,
                                                      const SharedList<Transaction>& transactions, Instant now,
                                                      const Calendar& calendar);

}  // namespace vantello
