#pragma once
// What the rules screen changes, as changes of the ledger made through the model's one door.

#include "app/model/LedgerViewModel.hpp"
#include "core/ledger/LedgerCategoryRules.hpp"

#include <QString>

#include <optional>
#include <string>

namespace vantello::app {

// Adds a rule at the end of the list (lowest priority), or changes the one with `ruleID`. The
// core's reason when it is refused (an empty text…), for the editor that stays open.
std::optional<QString> saveCategoryRule(LedgerViewModel& model, const std::optional<Uuid>& ruleID,
                                        const QString& pattern, const std::string& categoryID);
void removeCategoryRule(LedgerViewModel& model, const Uuid& ruleID);
void moveRule(LedgerViewModel& model, const Uuid& ruleID, MoveDirection direction);

}  // namespace vantello::app
