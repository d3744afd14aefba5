// Savings goals: what their cards derive on a day, and the operations that keep them valid.

#include "core/ledger/GoalError.hpp"
#include "core/ledger/LedgerGoals.hpp"
#include "core/planning/GoalProgress.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using namespace testing;

SavingsGoal goal(const char* target, Instant createdAt, std::optional<Instant> deadline = std::nullopt) {
    SavingsGoal made;
    made.id = Uuid::random();
    made.name = "Vacanze";
    made.target = amount(target);
    made.createdAt = createdAt;
    made.deadline = deadline;
    return made;
}

SavingsGoal withDeposits(SavingsGoal made, std::initializer_list<const char*> amounts) {
    for (const char* value : amounts) made.contributions.push_back({Uuid::random(), made.createdAt, amount(value), ""});
    return made;
}

TEST(GoalProgress, PaceFromTheCreationMonthGivesStatusAndReachDate) {
    const Instant now = at(2026, 3, 15);
    // Created in January: three months counted, 300 saved, 100 a month.
    const auto saved = withDeposits(goal("1000", at(2026, 1, 20), at(2026, 6, 30)), {"200", "100"});
    const GoalProgress progress = goalProgress(saved, now, rome());
    EXPECT_EQ(progress.saved, amount("300"));
    EXPECT_EQ(progress.remaining, amount("700"));
    EXPECT_DOUBLE_EQ(progress.progress, 0.3);
    EXPECT_EQ(progress.monthlyPace, amount("100"));
    EXPECT_EQ(progress.monthsLeft, 3);
    // 700 over three months, rounded up so that paying it always reaches the target.
    EXPECT_EQ(progress.monthlyAmountNeeded, amount("233.34"));
    EXPECT_EQ(progress.status, GoalStatus::behind);  // 300 + 100 × 3 < 1000
    EXPECT_EQ(progress.projectedReachDate, at(2026, 10, 15));

    const GoalProgress ahead = goalProgress(withDeposits(saved, {"400"}), now, rome());
    EXPECT_EQ(ahead.status, GoalStatus::onTrack);  // 700 + 233.33… × 3 ≥ 1000
}

TEST(GoalProgress, PastDeadlineIsOverdueWithEverythingDueThisMonth) {
    const auto late = withDeposits(goal("500", at(2025, 11, 1), at(2026, 2, 28)), {"100"});
    const GoalProgress progress = goalProgress(late, at(2026, 3, 1, 9), rome());
    EXPECT_EQ(progress.status, GoalStatus::overdue);
    EXPECT_EQ(progress.monthsLeft, 1);
    EXPECT_EQ(progress.monthlyAmountNeeded, amount("400"));
    // On the deadline's own day the goal is not yet overdue.
    EXPECT_NE(goalProgress(late, at(2026, 2, 28, 23), rome()).status, GoalStatus::overdue);
}

TEST(GoalProgress, ReachedOrIdleGoals) {
    const auto reached = withDeposits(goal("500", at(2026, 3, 1), at(2026, 1, 1)), {"450", "80"});
    const GoalProgress done = goalProgress(reached, at(2026, 3, 10), rome());
    EXPECT_EQ(done.status, GoalStatus::completed);  // before overdue
    EXPECT_EQ(done.remaining, Decimal());
    EXPECT_DOUBLE_EQ(done.progress, 1.0);
    EXPECT_FALSE(done.monthlyAmountNeeded);
    EXPECT_FALSE(done.projectedReachDate);

    const GoalProgress idle = goalProgress(goal("500", at(2026, 3, 1)), at(2026, 3, 10), rome());
    EXPECT_EQ(idle.status, GoalStatus::noDeadline);
    EXPECT_FALSE(idle.monthsLeft);
    EXPECT_FALSE(idle.projectedReachDate);  // no pace, no date
}

TEST(LedgerGoals, RefusedChangesLeaveTheLedgerAsItWas) {
    Ledger ledger;
    SavingsGoal blank = goal("100", at(2026, 1, 1));
    blank.name = " \n ";
    EXPECT_THROW(addGoal(ledger, blank), GoalError);
    EXPECT_THROW(addGoal(ledger, goal("0", at(2026, 1, 1))), GoalError);

    SavingsGoal added = goal("100", at(2026, 1, 1));
    added.name = "  Auto nuova ";
    addGoal(ledger, added);
    EXPECT_EQ(ledger.data().savingsGoals.at(0).name, "Auto nuova");
    addContribution(ledger, added.id, {Uuid::random(), at(2026, 1, 2), amount("30"), ""});
    const Ledger before = ledger;

    const auto failure = [&](auto&& operation) -> std::optional<GoalError::Code> {
        try {
            operation();
        } catch (const GoalError& error) {
            return error.code();
        }
        return std::nullopt;
    };
    EXPECT_EQ(failure([&] { addContribution(ledger, added.id, {Uuid::random(), at(2026, 1, 3), amount("-30.01"), ""}); }),
              GoalError::Code::withdrawalTooLarge);
    EXPECT_EQ(failure([&] { addContribution(ledger, added.id, {Uuid::random(), at(2026, 1, 3), amount("0.00"), ""}); }),
              GoalError::Code::zeroContribution);
    EXPECT_THROW(removeContribution(ledger, added.id, Uuid::random()), GoalError);
    EXPECT_THROW(removeGoal(ledger, Uuid::random()), GoalError);
    EXPECT_EQ(ledger, before);

    addContribution(ledger, added.id, {Uuid::random(), at(2026, 1, 3), amount("-30"), ""});
    EXPECT_EQ(ledger.data().savingsGoals.at(0).saved(), Decimal());
    removeGoal(ledger, added.id);
    EXPECT_TRUE(ledger.data().savingsGoals.empty());
}

}  // namespace
}  // namespace vantello
