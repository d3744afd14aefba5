#pragma once
// The category rules of a ledger: filing movements by the text of their description. The list
// order is the rules' priority.

#include "core/ledger/Ledger.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace vantello {

enum class MoveDirection { up, down };

CategoryRule addCategoryRule(Ledger& ledger, std::string_view pattern, std::string categoryID);
void updateCategoryRule(Ledger& ledger, CategoryRule rule);
void deleteCategoryRule(Ledger& ledger, const Uuid& id);
// One place up or down the priority list; nothing happens at either end or for an unknown id.
void moveCategoryRule(Ledger& ledger, const Uuid& id, MoveDirection direction);

// Re-files the movements sitting in a fallback category; returns how many the rules won, the
// ones whose winning rule names the category they are already in included.
int applyCategoryRules(Ledger& ledger);
// The category the rules give a movement of `kind` with `note` filed in the fallback of its
// kind, or nothing when no rule applies. CategoryRuleMatcher answers this for many notes.
[[nodiscard]] std::optional<std::string> categoryByRules(const Ledger& ledger, std::string_view note,
                                                         TransactionKind kind);

}  // namespace vantello
