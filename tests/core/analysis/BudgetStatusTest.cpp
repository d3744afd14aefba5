#include "core/analysis/BudgetStatus.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using namespace testing;

BudgetStatus::Level levelFor(const char* budget, const char* spent) {
    return BudgetStatus{TransactionCategory{}, amount(budget), amount(spent)}.level();
}

TEST(BudgetStatus, LevelsAtTheirThresholds) {
    using Level = BudgetStatus::Level;
    EXPECT_EQ(levelFor("100", "79.99"), Level::onTrack);
    EXPECT_EQ(levelFor("100", "80"), Level::warning);
    EXPECT_EQ(levelFor("100", "100"), Level::warning);
    EXPECT_EQ(levelFor("100", "100.01"), Level::over);
    EXPECT_EQ(levelFor("0", "0"), Level::onTrack);
    EXPECT_EQ(levelFor("0", "0.01"), Level::over);
    // 0.8 of a budget that no double holds exactly is still the warning line.
    EXPECT_EQ(levelFor("0.3", "0.24"), Level::warning);
    EXPECT_EQ((BudgetStatus{TransactionCategory{}, amount("100"), amount("130")}.remaining()), amount("-30"));
}

TEST(BudgetStatus, CategoryListOrderOnlyBudgetedCategoriesSpentInTheMonth) {
    LedgerData data;
    data.budgets = {{"svago", amount("50")}, {"spesa", amount("300")}, {"casa", amount("800")}};
    data.transactions = std::vector{expense("40", at(2026, 3, 3), "spesa"), expense("45", at(2026, 3, 9), "svago"),
                                    expense("99", at(2026, 2, 27), "svago"), expense("70", at(2026, 3, 3), "salute")};
    const std::vector<BudgetStatus> statuses = budgetStatuses(Ledger(data), rome().monthInterval(at(2026, 3, 15)));
    ASSERT_EQ(statuses.size(), 3U);
    EXPECT_EQ(statuses[0].category.id, "spesa");
    EXPECT_EQ(statuses[1].category.id, "casa");
    EXPECT_EQ(statuses[1].spent, Decimal());
    EXPECT_EQ(statuses[2].category.id, "svago");
    EXPECT_EQ(statuses[2].spent, amount("45"));
    EXPECT_DOUBLE_EQ(statuses[2].progress(), 0.9);
}

}  // namespace
}  // namespace vantello
