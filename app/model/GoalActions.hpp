#pragma once
// What the goals screen does to the ledger's savings goals, as changes made through the model's
// one door (saved, and undone as one step). The core's message comes back to the dialog that
// asked, which stays open.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Decimal.hpp"
#include "core/ledger/SavingsGoal.hpp"

#include <QString>

#include <optional>
#include <string>
#include <variant>

namespace vantello::app {

// Adds the goal, or changes the one with its id when it is already there.
std::optional<QString> saveGoal(LedgerViewModel& model, const SavingsGoal& goal);
void deleteGoal(LedgerViewModel& model, const Uuid& goalID);

// A deposit (`withdrawal` false) or a withdrawal of `amount`, dated `date`.
std::optional<QString> addGoalContribution(LedgerViewModel& model, const Uuid& goalID, const Decimal& amount,
                                           bool withdrawal, Instant date, const std::string& note);
void removeGoalContribution(LedgerViewModel& model, const Uuid& goalID, const Uuid& contributionID);

// An amount for an edit field, as the interface language writes it without grouping ("1250,00").
[[nodiscard]] QString editableAmount(const Decimal& amount);
// An amount as the user typed it ("1.250,00"), or the message that says it cannot be read.
[[nodiscard]] std::variant<Decimal, QString> typedAmount(const QString& text);

}  // namespace vantello::app
