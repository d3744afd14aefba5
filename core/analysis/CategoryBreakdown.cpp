#include "core/analysis/CategoryBreakdown.hpp"

#include "core/analysis/PeriodTotals.hpp"

#include <algorithm>

namespace vantello {

void addToCategorySums(std::map<std::string, Decimal>& sums, const Transaction& transaction) {
    if (transaction.kind == TransactionKind::expense && countsInTotals(transaction)) {
        sums[transaction.categoryID] += transaction.amount;
    }
}

std::map<std::string, Decimal> expensesByCategory(const Ledger& ledger, const DateInterval& interval) {
    std::map<std::string, Decimal> sums;
    for (const Transaction& transaction : ledger.transactions()) {
        if (interval.contains(transaction.date)) addToCategorySums(sums, transaction);
    }
    return sums;
}

std::vector<CategoryTotal> categoryBreakdown(const Ledger& ledger, const std::map<std::string, Decimal>& sums) {
    Decimal grandTotal;
    for (const auto& [id, sum] : sums) grandTotal += sum;
    if (grandTotal.sign() <= 0) return {};

    std::vector<CategoryTotal> totals;
    totals.reserve(sums.size());
    for (const auto& [id, sum] : sums) {
        TransactionCategory category =
            ledger.category(id).value_or(TransactionCategory{id, id, "questionmark", TransactionKind::expense});
        const double share = sum.dividedBy(grandTotal).value_or(Decimal()).toDouble();
        totals.push_back(CategoryTotal{std::move(category), sum, share});
    }
    std::stable_sort(totals.begin(), totals.end(), [](const CategoryTotal& left, const CategoryTotal& right) {
        if (left.total != right.total) return left.total > right.total;
        return left.category.name < right.category.name;
    });
    return totals;
}

std::vector<CategoryTotal> categoryBreakdown(const Ledger& ledger, const DateInterval& interval) {
    return categoryBreakdown(ledger, expensesByCategory(ledger, interval));
}

}  // namespace vantello
