#pragma once
// Expenses by category over a stretch of time: the list, bar chart and donut of the summary
// screens, largest first.

#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <map>
#include <string>
#include <vector>

namespace vantello {

struct CategoryTotal {
    TransactionCategory category;
    Decimal total;
    double share = 0;  // total ÷ the sum over every category, 0...1

    bool operator==(const CategoryTotal&) const = default;
};

// Adds a counting expense to the sum of its category; anything else is left out.
void addToCategorySums(std::map<std::string, Decimal>& sums, const Transaction& transaction);

// The counting expenses dated in the interval, summed per category id (income never enters).
[[nodiscard]] std::map<std::string, Decimal> expensesByCategory(const Ledger& ledger, const DateInterval& interval);

// One entry per category with expenses in the interval, by total descending and, for equal
// totals, by name ascending. Empty when the expenses add up to zero. A category id the ledger no
// longer knows keeps its sum under a category named by the id.
[[nodiscard]] std::vector<CategoryTotal> categoryBreakdown(const Ledger& ledger, const DateInterval& interval);

// The same from sums already taken per category id.
[[nodiscard]] std::vector<CategoryTotal> categoryBreakdown(const Ledger& ledger,
                                                           const std::map<std::string, Decimal>& sums);

}  // namespace vantello
