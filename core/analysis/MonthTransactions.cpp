#include "core/analysis/MonthTransactions.hpp"

namespace vantello {

std::vector<Transaction> monthTransactions(const Ledger& ledger, Instant dayInMonth, const Calendar& calendar) {
    const DateInterval month = calendar.monthInterval(dayInMonth);
    std::vector<Transaction> chosen;
    for (const Transaction& transaction : ledger.transactions()) {
        if (month.contains(transaction.date)) chosen.push_back(transaction);
    }
    return chosen;
}

}  // namespace vantello
