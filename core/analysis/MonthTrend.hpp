#pragma once
// Income and expenses month by month, the trend chart of the summary screens.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <vector>

namespace vantello {

struct MonthTotals {
    Instant month;  // the first instant of the month; the identity of a point
    Decimal income;
    Decimal expenses;

    bool operator==(const MonthTotals&) const = default;
};

// The period totals of the `months` calendar months ending with the one that holds `now`,
// oldest first (the screens ask for 12). A month the calendar cannot reach is left out.
// The same, filled by one movement at a time, for callers that walk the movements once for
// several results.
class MonthTrendTally {
public:
    MonthTrendTally(int months, Instant now, const Calendar& calendar);
    void add(const Transaction& transaction);
    [[nodiscard]] std::vector<MonthTotals> result() const;

private:
    std::vector<DateInterval> intervals_;  // oldest first
    std::vector<MonthTotals> totals_;
};

[[nodiscard]] std::vector<MonthTotals> monthTrend(const Ledger& ledger, int months, Instant now,
                                                  const Calendar& calendar);

}  // namespace vantello
