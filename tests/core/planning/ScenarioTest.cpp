#include "core/planning/Scenario.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace vantello {
namespace {

using testing::amount;
using testing::at;
using testing::expense;
using testing::income;
using testing::rome;

const Instant now = at(2025, 4, 15);

ScenarioAdjustment change(ScenarioAdjustment::Change change) { return {Uuid::random(), std::move(change)}; }

SavingsGoal goal(const char* target, const char* saved) {
    SavingsGoal made;
    made.id = Uuid::random();
    made.target = amount(target);
    made.createdAt = at(2025, 1, 1);
    made.contributions.push_back({Uuid::random(), at(2025, 1, 2), amount(saved), ""});
    return made;
}

ScenarioResult simulate(const std::vector<Transaction>& movements, const std::vector<ScenarioAdjustment>& adjustments,
                        std::vector<SavingsGoal> goals = {}) {
    LedgerData data;
    data.transactions = movements;
    data.savingsGoals = std::move(goals);
    return simulateScenario(Ledger(data), adjustments, now, rome());
}

TEST(Scenario, OnlyCompleteMonthsWithMovementsAreTheBasis) {
    const std::vector<Transaction> outside{income("2000", at(2025, 4, 1)), expense("50", at(2024, 12, 31, 23))};
    const ScenarioResult none = simulate(outside, {});
    EXPECT_EQ(none.basisMonths, 0);
    EXPECT_TRUE(none.projection.empty());

    std::vector<Transaction> oneMonth = outside;
    oneMonth.push_back(income("1500", at(2025, 2, 27)));
    oneMonth.push_back(expense("320.40", at(2025, 2, 1, 0)));
    oneMonth.push_back(testing::transfer("900", at(2025, 2, 10), "principale", "conto-risparmio"));
    const ScenarioResult one = simulate(oneMonth, {});
    EXPECT_EQ(one.basisMonths, 1);
    EXPECT_EQ(one.baselineIncome, amount("1500"));
    EXPECT_EQ(one.baselineExpenses, amount("320.4"));
    EXPECT_EQ(one.scenarioExpenses, amount("320.4"));
}

TEST(Scenario, AdjustmentsChangeTheAverageMonth) {
    std::vector<Transaction> movements;
    for (int month = 1; month <= 3; ++month) {
        movements.push_back(income("1000", at(2025, month, 27)));
        movements.push_back(expense("200", at(2025, month, 5), "spesa"));
    }
    movements.push_back(expense("100", at(2025, 3, 8), "svago"));  // 33.33 a month
    const ScenarioResult result =
        simulate(movements, {change(ScenarioAdjustment::Category{"spesa", -0.2}),
                             change(ScenarioAdjustment::Category{"casa", -0.5}),
                             change(ScenarioAdjustment::Income{0.05}), change(ScenarioAdjustment::Income{0.05}),
                             change(ScenarioAdjustment::MonthlyExpense{amount("12.5")})});
    EXPECT_EQ(result.basisMonths, 3);
    EXPECT_EQ(result.baselineIncome, amount("1000"));
    EXPECT_EQ(result.baselineExpenses, amount("233.33"));
    EXPECT_EQ(result.scenarioIncome, amount("1100"));
    EXPECT_EQ(result.scenarioExpenses, amount("205.83"));  // 160 + 33.33 + 12.50

    ASSERT_EQ(result.projection.size(), 12u);
    EXPECT_EQ(result.projection[0].month, at(2025, 5, 1, 0));
    EXPECT_EQ(result.projection[11].month, at(2026, 4, 1, 0));
    EXPECT_EQ(result.projection[11].baseline, amount("9200.04"));
    EXPECT_EQ(result.projection[11].scenario, amount("10730.04"));
}

TEST(Scenario, WithoutAdjustmentsBothLinesAreTheSameToTheCent) {
    // 200 over three months is 66.67 as a whole but 33.33 + 33.33 by category.
    std::vector<Transaction> movements;
    for (int month = 1; month <= 3; ++month) movements.push_back(income("1000", at(2025, month, 27)));
    movements.push_back(expense("100", at(2025, 1, 5), "spesa"));
    movements.push_back(expense("100", at(2025, 2, 5), "svago"));
    const ScenarioResult result = simulate(movements, {});
    EXPECT_EQ(result.baselineExpenses, amount("66.67"));
    EXPECT_EQ(result.scenarioExpenses, amount("66.66"));
    ASSERT_EQ(result.projection.size(), 12u);
    EXPECT_EQ(result.projection[0].baseline, amount("933.34"));
    EXPECT_EQ(result.projection[11].baseline, result.projection[11].scenario);
}

TEST(Scenario, GoalDatesAtEachMonthlyNet) {
    std::vector<Transaction> movements;
    for (int month = 1; month <= 3; ++month) {
        movements.push_back(income("1000", at(2025, month, 27)));
        movements.push_back(expense("700", at(2025, month, 5), "casa"));
    }
    const ScenarioResult result =
        simulate(movements, {change(ScenarioAdjustment::MonthlyExpense{amount("400")})},
                 {goal("1500", "500"), goal("1000", "1000")});
    ASSERT_EQ(result.goals.size(), 2u);
    EXPECT_EQ(result.goals[0].baselineDate, at(2025, 8, 15));  // 1000 at 300 a month: 4 months
    EXPECT_EQ(result.goals[0].scenarioDate, std::nullopt);      // 100 a month less than nothing
    EXPECT_EQ(result.goals[1].baselineDate, std::nullopt);      // already reached
    EXPECT_EQ(result.goals[1].scenarioDate, std::nullopt);
}

}  // namespace
}  // namespace vantello
