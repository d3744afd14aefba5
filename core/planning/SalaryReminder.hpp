#pragma once
// The salary reminder: a day of the month and an hour at which the user is reminded to record
// the salary, silent while a period without work is in progress, in a month whose salary is
// already recorded and on days without work.

#include "core/base/Calendar.hpp"
#include "core/base/Json.hpp"
#include "core/base/SharedList.hpp"
#include "core/ledger/Transaction.hpp"
#include "core/ledger/UnemploymentPeriod.hpp"

#include <optional>
#include <vector>

namespace vantello {

struct SalaryReminder {
    bool isEnabled = false;
    int day = 27;  // day of the month, 1...31
    int hour = 9;  // hour of the day, 0...23

    [[nodiscard]] bool isValid() const { return day >= 1 && day <= 31 && hour >= 0 && hour <= 23; }
    bool operator==(const SalaryReminder&) const = default;
};

// The first of the next twelve months, this one first, whose reminder day at the hour is not
// past, is not a day without work and, for this month, has no salary recorded yet. Nothing when
// the reminder is off or invalid, while a period without work is in progress, or when no month
// qualifies. A month lacking the day (the 31st in April) reminds on the next date that has it.
[[nodiscard]] std::optional<Instant> nextSalaryReminder(const SalaryReminder& reminder,
                                                        const std::vector<UnemploymentPeriod>& periods,
                                                        const SharedList<Transaction>& transactions, Instant now,
                                                        const Calendar& calendar);

// Keys "isEnabled", "day", "hour"; a day or hour out of range is a DecodingError.
void to_json(Json& json, const SalaryReminder& reminder);
void from_json(const Json& json, SalaryReminder& reminder);

}  // namespace vantello
