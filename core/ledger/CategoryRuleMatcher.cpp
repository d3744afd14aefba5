#include "core/ledger/CategoryRuleMatcher.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/Ledger.hpp"

namespace vantello {

// Rules with an empty pattern, or whose category is missing or the transfer, can file nothing;
// each of the others files only movements of its category's kind.
CategoryRuleMatcher::CategoryRuleMatcher(const Ledger& ledger) {
    for (const CategoryRule& rule : ledger.categoryRules()) {
        std::string pattern = Text::trimmed(rule.pattern);
        if (pattern.empty() || rule.categoryID == transferCategoryID) continue;
        const std::optional<TransactionCategory> category = ledger.category(rule.categoryID);
        if (!category) continue;
        auto& rules = category->kind == TransactionKind::expense ? expenseRules_ : incomeRules_;
        rules.push_back({std::move(pattern), rule.categoryID});
    }
}

std::optional<std::string> CategoryRuleMatcher::categoryFor(std::string_view note, TransactionKind kind) const {
    for (const Rule& rule : kind == TransactionKind::expense ? expenseRules_ : incomeRules_) {
        if (Text::containsIgnoringCaseAndAccents(note, rule.pattern)) return rule.categoryID;
    }
    return std::nullopt;
}

}  // namespace vantello
