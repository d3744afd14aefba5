#include "core/analysis/TransactionSearch.hpp"

#include "core/analysis/SearchPeriod.hpp"

#include <algorithm>
#include <cstddef>

namespace vantello {

bool matchesFilter(const Transaction& transaction, const TransactionFilter& filter,
                   const std::optional<DateInterval>& period, const TransactionFilter::Query& query) {
    // The date and the plain fields first; the text, which may need Unicode folding, comes last.
    if (period && !period->contains(transaction.date)) return false;
    if (filter.kind && *filter.kind != transaction.kind) return false;
    if (!filter.categoryIDs.empty() && !filter.categoryIDs.contains(transaction.categoryID)) return false;
    if (filter.minAmount && transaction.amount < *filter.minAmount) return false;
    if (filter.maxAmount && transaction.amount > *filter.maxAmount) return false;
    if (filter.onlyWithAttachments && transaction.attachments.empty()) return false;
    if (filter.accountID && *filter.accountID != transaction.accountID) return false;
    return query.matches(transaction);
}

std::vector<Transaction> searchTransactions(const Ledger& ledger, const TransactionFilter& filter, Instant now,
                                            const Calendar& calendar) {
    const std::optional<DateInterval> period = periodInterval(filter, now, calendar);
    const TransactionFilter::Query query = prepareQuery(ledger, filter.text);
    std::vector<Transaction> found;
    const auto& transactions = ledger.transactions();
    // A text search reads every note, and notes live on the heap apart from their movements:
    // asking for the notes a few movements ahead hides most of the memory latency.
    constexpr std::size_t lookahead = 16;
    auto ahead = transactions.begin();
    if (!query.isEmpty()) ahead += static_cast<std::ptrdiff_t>(std::min(lookahead, transactions.size()));
    for (const Transaction& transaction : transactions) {
        if (!query.isEmpty() && ahead != transactions.end()) {
            __builtin_prefetch(ahead->note.data());
            ++ahead;
        }
        if (matchesFilter(transaction, filter, period, query)) found.push_back(transaction);
    }
    // A ledger sorts its movements newest first when it is made, but adding one appends it.
    const auto newerFirst = [](const Transaction& a, const Transaction& b) { return a.date > b.date; };
    if (!std::is_sorted(found.begin(), found.end(), newerFirst)) std::stable_sort(found.begin(), found.end(), newerFirst);
    return found;
}

}  // namespace vantello
