#include "core/analysis/PeriodTotals.hpp"

namespace vantello {

void addToTotals(PeriodTotals& totals, const Transaction& transaction) {
    if (!countsInTotals(transaction)) return;
    (transaction.kind == TransactionKind::income ? totals.income : totals.expenses) += transaction.amount;
}

PeriodTotals periodTotals(const Ledger& ledger, const DateInterval& interval) {
    PeriodTotals totals;
    for (const Transaction& transaction : ledger.transactions()) {
        if (interval.contains(transaction.date)) addToTotals(totals, transaction);
    }
    return totals;
}

}  // namespace vantello
