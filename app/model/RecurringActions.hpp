#pragma once
// What the recurring movements screen changes, as changes of the ledger made through the
// model's one door (saved, and undone in one step).

#include "app/model/LedgerViewModel.hpp"
#include "core/ledger/RecurringRule.hpp"

#include <QString>

#include <optional>

namespace vantello::app {

// Adds the rule (or replaces the one with its id when `isNew` is false) with the amount as the
// user typed it, and creates the movements it makes due up to now, all in one change. The
// reason, in the user's language, when the amount or the rule is not valid: the ledger is then
// as it was and the editor shows it.
std::optional<QString> saveRecurringRule(LedgerViewModel& model, RecurringRule rule, const QString& amountText,
                                         bool isNew);
// The movements it already created stay.
void removeRecurringRule(LedgerViewModel& model, const Uuid& ruleID);

}  // namespace vantello::app
