// Category rules of the ledger: filing movements by the text of their description.

#include "core/base/Text.hpp"
#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerError.hpp"

#include <algorithm>

namespace vantello {

namespace {

struct PreparedRule {
    std::string pattern;  // trimmed, never empty
    const std::string* categoryID;
};

// The rules that can file a movement of `kind`, in priority order: patterns trimmed, empty
// patterns and categories that are missing or of the other kind left out.
std::vector<PreparedRule> rulesFor(const Ledger& ledger, TransactionKind kind) {
    std::vector<PreparedRule> prepared;
    for (const CategoryRule& rule : ledger.categoryRules()) {
        std::string pattern = Text::trimmed(rule.pattern);
        if (pattern.empty() || rule.categoryID == transferCategoryID) continue;
        const std::optional<TransactionCategory> category = ledger.category(rule.categoryID);
        if (!category || category->kind != kind) continue;
        prepared.push_back({std::move(pattern), &rule.categoryID});
    }
    return prepared;
}

const std::string* firstMatch(const std::vector<PreparedRule>& rules, std::string_view note) {
    for (const PreparedRule& rule : rules) {
        if (Text::containsIgnoringCaseAndAccents(note, rule.pattern)) return rule.categoryID;
    }
    return nullptr;
}

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
    const std::string* match = firstMatch(rulesFor(*this, kind), note);
    if (!match) return std::nullopt;
    return *match;
}

int Ledger::applyCategoryRules() {
    const std::vector<PreparedRule> expenseRules = rulesFor(*this, TransactionKind::expense);
    const std::vector<PreparedRule> incomeRules = rulesFor(*this, TransactionKind::income);
    if (expenseRules.empty() && incomeRules.empty()) return 0;

    // Decided on the unchanged list first; the prepared rules point into the rule list, which
    // stays as it is while the movements change.
    int moved = 0;
    SharedList<Transaction>& transactions = data_.transactions;
    for (std::size_t index = 0; index < transactions.size(); ++index) {
        const Transaction& transaction = transactions[index];
        const std::string_view fallback = fallbackCategoryID(transaction.kind);
        if (transaction.categoryID != fallback || transaction.transferToAccountID) continue;
        const auto& rules = transaction.kind == TransactionKind::expense ? expenseRules : incomeRules;
        const std::string* match = firstMatch(rules, transaction.note);
        // A rule pointing at the fallback itself wins but leaves the movement where it is.
        if (!match || *match == fallback) continue;
        transactions.update(index, [&](Transaction& changed) { changed.categoryID = *match; });
        ++moved;
    }
    return moved;
}

}  // namespace vantello
