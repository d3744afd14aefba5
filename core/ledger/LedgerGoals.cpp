#include "core/ledger/LedgerGoals.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/GoalError.hpp"

#include <algorithm>
#include <cstddef>

namespace vantello {

namespace {

std::size_t indexOfGoal(const Ledger& ledger, const Uuid& goalID) {
    const auto& goals = ledger.data().savingsGoals;
    const auto found = std::ranges::find(goals, goalID, &SavingsGoal::id);
    if (found == goals.end()) throw GoalError(GoalError::Code::notFound);
    return static_cast<std::size_t>(found - goals.begin());
}

void validateGoal(SavingsGoal& goal) {
    goal.name = Text::trimmed(goal.name);
    if (goal.name.empty()) throw GoalError(GoalError::Code::emptyName);
    if (goal.target <= Decimal()) throw GoalError(GoalError::Code::targetNotPositive);
}

}  // namespace

void addGoal(Ledger& ledger, SavingsGoal goal) {
    validateGoal(goal);
    ledger.change([&](LedgerData& data) { data.savingsGoals.push_back(std::move(goal)); });
}

void updateGoal(Ledger& ledger, SavingsGoal goal) {
    const std::size_t index = indexOfGoal(ledger, goal.id);
    validateGoal(goal);
    ledger.change([&](LedgerData& data) {
        SavingsGoal& stored = data.savingsGoals[index];
        stored.name = std::move(goal.name);
        stored.symbol = std::move(goal.symbol);
        stored.target = goal.target;
        stored.deadline = goal.deadline;
    });
}

void removeGoal(Ledger& ledger, const Uuid& goalID) {
    const std::size_t index = indexOfGoal(ledger, goalID);
    ledger.change([&](LedgerData& data) {
        data.savingsGoals.erase(data.savingsGoals.begin() + static_cast<std::ptrdiff_t>(index));
    });
}

void addContribution(Ledger& ledger, const Uuid& goalID, SavingsGoal::Contribution contribution) {
    const std::size_t index = indexOfGoal(ledger, goalID);
    if (contribution.amount.isZero()) throw GoalError(GoalError::Code::zeroContribution);
    if (contribution.amount < Decimal() && ledger.data().savingsGoals[index].saved() + contribution.amount < Decimal()) {
        throw GoalError(GoalError::Code::withdrawalTooLarge);
    }
    contribution.note = Text::trimmed(contribution.note);
    ledger.change([&](LedgerData& data) { data.savingsGoals[index].contributions.push_back(std::move(contribution)); });
}

void removeContribution(Ledger& ledger, const Uuid& goalID, const Uuid& contributionID) {
    const std::size_t index = indexOfGoal(ledger, goalID);
    const auto& contributions = ledger.data().savingsGoals[index].contributions;
    const auto found = std::ranges::find(contributions, contributionID, &SavingsGoal::Contribution::id);
    if (found == contributions.end()) throw GoalError(GoalError::Code::notFound);
    const auto position = found - contributions.begin();
    ledger.change([&](LedgerData& data) {
        auto& stored = data.savingsGoals[index].contributions;
        stored.erase(stored.begin() + position);
    });
}

}  // namespace vantello
