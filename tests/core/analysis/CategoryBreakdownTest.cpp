#include "core/analysis/CategoryBreakdown.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using namespace testing;

std::vector<std::string> idsOf(const std::vector<CategoryTotal>& totals) {
    std::vector<std::string> ids;
    for (const CategoryTotal& total : totals) ids.push_back(total.category.id);
    return ids;
}

// "Bollette" < "Casa" < "Svago" by name, though the ids and the insertion order say otherwise.
TEST(CategoryBreakdown, LargestFirstAndEqualTotalsByName) {
    LedgerData data;
    data.transactions = std::vector{
        expense("50", at(2026, 3, 2), "svago"),   expense("20", at(2026, 3, 3), "spesa"),
        expense("50", at(2026, 3, 4), "casa"),    expense("30", at(2026, 3, 5), "bollette"),
        expense("20", at(2026, 3, 6), "bollette"), income("900", at(2026, 3, 7)),
        transfer("400", at(2026, 3, 8), std::string(mainAccountID), std::string(mainAccountID) + "x"),
    };
    const Ledger ledger(data);
    const std::vector<CategoryTotal> breakdown = categoryBreakdown(ledger, rome().monthInterval(at(2026, 3, 15)));
    EXPECT_EQ(idsOf(breakdown), (std::vector<std::string>{"bollette", "casa", "svago", "spesa"}));
    EXPECT_EQ(breakdown[0].total, amount("50"));
    EXPECT_EQ(breakdown[0].category.name, "Bollette");
    EXPECT_DOUBLE_EQ(breakdown[3].share, 20.0 / 170.0);
}

TEST(CategoryBreakdown, EmptyWithoutExpenses) {
    LedgerData data;
    data.transactions = std::vector{income("900", at(2026, 3, 7)), expense("10", at(2026, 2, 28))};
    EXPECT_TRUE(categoryBreakdown(Ledger(data), rome().monthInterval(at(2026, 3, 15))).empty());
}

}  // namespace
}  // namespace vantello
