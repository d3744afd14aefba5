#pragma once
// The savings goals of a ledger: adding, editing and removing them, and recording deposits and
// withdrawals. Each operation throws GoalError and leaves the ledger as it was, or changes it.

#include "core/ledger/Ledger.hpp"

namespace vantello {

// The name is kept trimmed; it must not be empty and the target must be greater than zero.
void addGoal(Ledger& ledger, SavingsGoal goal);
// Replaces name, symbol, target and deadline of the goal with the same id; its creation date
// and contributions stay.
void updateGoal(Ledger& ledger, SavingsGoal goal);
void removeGoal(Ledger& ledger, const Uuid& goalID);

// A deposit (positive) or a withdrawal (negative), never zero; a withdrawal may not take the
// saved amount below zero.
void addContribution(Ledger& ledger, const Uuid& goalID, SavingsGoal::Contribution contribution);
void removeContribution(Ledger& ledger, const Uuid& goalID, const Uuid& contributionID);

}  // namespace vantello
