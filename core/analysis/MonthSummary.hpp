#pragma once
// Everything the month screen shows for one month, worked out in a single walk over the
// movements: the totals of the month and of the one before, expenses by category and the donut,
// the twelve-month trend, the budgets and, for the month in progress, the forecast and the lowest
// balance ahead. Each part equals what its own function gives.

#include "core/analysis/BudgetStatus.hpp"
#include "core/analysis/CategoryBreakdown.hpp"
#include "core/analysis/CategorySlices.hpp"
#include "core/analysis/LowestBalance.hpp"
#include "core/analysis/MonthForecast.hpp"
#include "core/analysis/MonthTrend.hpp"
#include "core/analysis/PeriodTotals.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <optional>
#include <string>
#include <vector>

namespace vantello {

struct MonthSummary {
    DateInterval month;
    PeriodTotals totals;
    PeriodTotals previousTotals;
    std::vector<CategoryTotal> breakdown;
    std::vector<CategorySlice> slices;  // at most six
    std::vector<MonthTotals> trend;     // twelve months, ending with this one
    std::vector<BudgetStatus> budgets;
    std::optional<MonthForecast> forecast;  // only when the month holds `now` (3 basis months)
    std::optional<LowestBalance> lowestBalance;

    bool operator==(const MonthSummary&) const = default;
};

// The month holding `dayInMonth`, as of `now`. The account id, when given, narrows the forecast
// and the lowest balance to that account; the other parts always cover every account.
[[nodiscard]] MonthSummary monthSummary(const Ledger& ledger, Instant dayInMonth, Instant now,
                                        const Calendar& calendar,
                                        const std::optional<std::string>& accountID = std::nullopt);

}  // namespace vantello
