#include "core/analysis/MonthSummary.hpp"

#include <map>

namespace vantello {

namespace {

// The screens show six slices at most, one per colour of the chart palette, and a year of trend.
constexpr int donutSlices = 6;
constexpr int trendMonths = 12;
constexpr int forecastBasisMonths = 3;

}  // namespace

MonthSummary monthSummary(const Ledger& ledger, Instant dayInMonth, Instant now, const Calendar& calendar,
                          const std::optional<std::string>& accountID) {
    MonthSummary summary;
    summary.month = calendar.monthInterval(dayInMonth);
    std::optional<DateInterval> previousMonth;
    if (const auto previous = calendar.adding(CalendarUnit::month, -1, dayInMonth)) {
        previousMonth = calendar.monthInterval(*previous);
    }
    const bool inProgress = summary.month.contains(now);

    MonthTrendTally trend(trendMonths, dayInMonth, calendar);
    std::map<std::string, Decimal> categorySums;
    std::optional<MonthForecastTally> forecast;
    std::optional<BalanceTally> balance;
    if (inProgress) {
        forecast.emplace(now, calendar, forecastBasisMonths, accountID);
        balance.emplace(ledger, accountID);
    }
    for (const Transaction& transaction : ledger.transactions()) {
        trend.add(transaction);
        if (summary.month.contains(transaction.date)) {
            addToTotals(summary.totals, transaction);
            addToCategorySums(categorySums, transaction);
        } else if (previousMonth && previousMonth->contains(transaction.date)) {
            addToTotals(summary.previousTotals, transaction);
        }
        if (forecast) {
            forecast->add(transaction);
            balance->add(transaction);
        }
    }

    summary.breakdown = categoryBreakdown(ledger, categorySums);
    summary.slices = categorySlices(summary.breakdown, donutSlices);
    summary.trend = trend.result();
    summary.budgets = budgetStatuses(ledger, categorySums);
    if (forecast) {
        summary.forecast = forecast->result(ledger);
        summary.lowestBalance = lowestBalance(ledger, now, calendar, balance->total(), *summary.forecast, accountID);
    }
    return summary;
}

}  // namespace vantello
