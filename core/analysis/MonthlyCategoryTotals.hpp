#pragma once
// The whole history month by month: each month's income and expense totals per category, the
// monthly report by category. Transfers between the user's own accounts never count.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vantello {

struct MonthCategoryTotals {
    CivilDate month;                          // day 1 of the month
    std::map<std::string, Decimal> income;    // category id → total
    std::map<std::string, Decimal> expenses;  // category id → total, positive
    bool operator==(const MonthCategoryTotals&) const = default;
};

// Every month from the one of the oldest counted movement to the one of the newest, oldest
// first, months without movements included (with empty totals); nothing for a ledger without
// counted movements. With `accountID`, only the movements of that account count. Months are
// taken in `calendar`.
[[nodiscard]] std::vector<MonthCategoryTotals> monthlyCategoryTotals(const Ledger& ledger,
                                                                     const std::optional<std::string>& accountID,
                                                                     const Calendar& calendar);

}  // namespace vantello
