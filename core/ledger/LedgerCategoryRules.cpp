// Category rules of the ledger: filing movements by the text of their description.

#include "core/base/Text.hpp"
#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/CategoryRuleMatcher.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerError.hpp"

#include <algorithm>
#include <utility>

namespace vantello {

namespace {

// The trimmed pattern, or the error that refuses the rule. Transfers need a destination
// account, so a rule can never file a movement as one.
std::string checkedRule(const Ledger& ledger, std::string_view pattern, const std::string& categoryID) {
    std::string trimmed = Text::trimmed(pattern);
    if (trimmed.empty()) throw AdvancedError(AdvancedError::Code::emptyPattern);
    if (categoryID == transferCategoryID || !ledger.category(categoryID)) {
        throw LedgerError(LedgerError::Code::unknownCategory, categoryID);
    }
    return trimmed;
}

}  // namespace

CategoryRule Ledger::addCategoryRule(std::string_view pattern, std::string categoryID) {
    CategoryRule rule;
    rule.pattern = checkedRule(*this, pattern, categoryID);
    rule.id = Uuid::random();
    rule.categoryID = std::move(categoryID);
    data_.categoryRules.push_back(rule);
    return rule;
}

void Ledger::updateCategoryRule(CategoryRule rule) {
    const auto position = std::find_if(data_.categoryRules.begin(), data_.categoryRules.end(),
                                       [&](const CategoryRule& existing) { return existing.id == rule.id; });
    if (position == data_.categoryRules.end()) throw LedgerError(LedgerError::Code::notFound);
    rule.pattern = checkedRule(*this, rule.pattern, rule.categoryID);
    *position = std::move(rule);
}

void Ledger::deleteCategoryRule(const Uuid& id) {
    std::erase_if(data_.categoryRules, [&](const CategoryRule& rule) { return rule.id == id; });
}

void Ledger::moveCategoryRule(const Uuid& id, Direction direction) {
    auto& rules = data_.categoryRules;
    const auto position =
        std::find_if(rules.begin(), rules.end(), [&](const CategoryRule& rule) { return rule.id == id; });
    if (position == rules.end()) return;
    if (direction == Direction::up && position != rules.begin()) {
        std::iter_swap(position, position - 1);
    } else if (direction == Direction::down && position + 1 != rules.end()) {
        std::iter_swap(position, position + 1);
    }
}

std::optional<std::string> Ledger::categoryByRules(std::string_view note, TransactionKind kind) const {
    return CategoryRuleMatcher(*this).categoryFor(note, kind);
}

int Ledger::applyCategoryRules() {
    const CategoryRuleMatcher rules(*this);
    if (rules.empty()) return 0;

    int moved = 0;
    SharedList<Transaction>& transactions = data_.transactions;
    for (std::size_t index = 0; index < transactions.size(); ++index) {
        const Transaction& transaction = transactions[index];
        const std::string_view fallback = fallbackCategoryID(transaction.kind);
        if (transaction.categoryID != fallback || transaction.transferToAccountID) continue;
        std::optional<std::string> match = rules.categoryFor(transaction.note, transaction.kind);
        // A rule pointing at the fallback itself wins but leaves the movement where it is.
        if (!match || *match == fallback) continue;
        transactions.update(index, [&](Transaction& changed) { changed.categoryID = std::move(*match); });
        ++moved;
    }
    return moved;
}

}  // namespace vantello
