#include "core/analysis/MonthTrend.hpp"

#include "core/analysis/PeriodTotals.hpp"

#include <algorithm>

namespace vantello {

MonthTrendTally::MonthTrendTally(int months, Instant now, const Calendar& calendar) {
    for (int back = months - 1; back >= 0; --back) {
        if (const auto moment = calendar.adding(CalendarUnit::month, -back, now)) {
            intervals_.push_back(calendar.monthInterval(*moment));
            totals_.push_back(MonthTotals{intervals_.back().start, Decimal(), Decimal()});
        }
    }
}

void MonthTrendTally::add(const Transaction& transaction) {
    // Most of a long history lies outside the trend: one comparison each sends it away.
    if (intervals_.empty() || transaction.date < intervals_.front().start || !(transaction.date < intervals_.back().end)) {
        return;
    }
    if (!countsInTotals(transaction)) return;
    // The months are sorted and adjacent: a binary search finds the only one that may hold it.
    const auto after = std::upper_bound(intervals_.begin(), intervals_.end(), transaction.date,
                                        [](Instant date, const DateInterval& month) { return date < month.start; });
    if (after == intervals_.begin() || !(after - 1)->contains(transaction.date)) return;
    MonthTotals& month = totals_[static_cast<std::size_t>(after - 1 - intervals_.begin())];
    (transaction.kind == TransactionKind::income ? month.income : month.expenses) += transaction.amount;
}

std::vector<MonthTotals> MonthTrendTally::result() const { return totals_; }

std::vector<MonthTotals> monthTrend(const Ledger& ledger, int months, Instant now, const Calendar& calendar) {
    MonthTrendTally tally(months, now, calendar);
    for (const Transaction& transaction : ledger.transactions()) tally.add(transaction);
    return tally.result();
}

}  // namespace vantello
