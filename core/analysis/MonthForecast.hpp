#pragma once
// How the current month is likely to close: what already happened, the recurring movements
// still due, and the variable spending still to come at the daily rate of earlier months.

#include "core/analysis/PeriodTotals.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <optional>
#include <string>
#include <vector>

namespace vantello {

struct MonthForecast {
    PeriodTotals actual;             // the month so far, today included
    PeriodTotals upcomingRecurring;  // recurring movements still due this month
    Decimal estimatedVariableExpenses;  // rounded to cents
    int daysRemaining = 0;              // whole days from tomorrow to the end of the month
    int basisMonths = 0;  // earlier months the daily rate comes from; 0 when from this month

    [[nodiscard]] Decimal projectedBalance() const {
        return actual.net() + upcomingRecurring.net() - estimatedVariableExpenses;
    }

    bool operator==(const MonthForecast&) const = default;
};

// The forecast of the month holding `now`, with the daily rate of variable spending taken from
// up to `basisMonths` earlier months that hold movements (below 1 counts as 1); when none does,
// from the days of this month already passed. With an account id, only that account's
// movements and rules are looked at (transfers still never count).
[[nodiscard]] MonthForecast monthForecast(const Ledger& ledger, Instant now, const Calendar& calendar,
                                          int basisMonths = 3,
                                          const std::optional<std::string>& accountID = std::nullopt);

// The same, filled by one movement at a time, for callers that walk the movements once for
// several results: offer every movement of the ledger to `add`, then ask for the result.
class MonthForecastTally {
public:
    MonthForecastTally(Instant now, const Calendar& calendar, int basisMonths = 3,
                       std::optional<std::string> accountID = std::nullopt);
    void add(const Transaction& transaction);
    // Adds the recurring movements still due, read from the ledger's rules.
    [[nodiscard]] MonthForecast result(const Ledger& ledger) const;

private:
    // An earlier month the daily rate may come from.
    struct BasisMonth {
        DateInterval interval;
        bool holdsMovements = false;
        Decimal variableExpenses;
    };

    Calendar calendar_;
    std::optional<std::string> accountID_;
    DateInterval month_;
    Instant today_;
    DateInterval soFar_;
    std::vector<BasisMonth> basis_;  // one month back first
    PeriodTotals actual_;
    Decimal variableSoFar_;
};

// What the estimate means, in the interface language: the daily rate of earlier months, or of
// this month's days when there are none, times the days remaining.
[[nodiscard]] std::string forecastExplanation(const MonthForecast& forecast);

}  // namespace vantello
