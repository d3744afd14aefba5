#include "core/ledger/LedgerCategoryRules.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/AdvancedError.hpp"
#include "core/ledger/CategoryRuleMatcher.hpp"
#include "core/ledger/LedgerError.hpp"
#include "core/ledger/RecordLookup.hpp"

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

CategoryRule addCategoryRule(Ledger& ledger, std::string_view pattern, std::string categoryID) {
    CategoryRule rule;
    rule.pattern = checkedRule(ledger, pattern, categoryID);
    rule.id = Uuid::random();
    rule.categoryID = std::move(categoryID);
    ledger.change([&](LedgerData& data) { data.categoryRules.push_back(rule); });
    return rule;
}

void updateCategoryRule(Ledger& ledger, CategoryRule rule) {
    ledger.change([&](LedgerData& data) {
        CategoryRule& existing = existingRecord(data.categoryRules, rule.id, LedgerError(LedgerError::Code::notFound));
        rule.pattern = checkedRule(ledger, rule.pattern, rule.categoryID);
        existing = std::move(rule);
    });
}

void deleteCategoryRule(Ledger& ledger, const Uuid& id) {
    ledger.change([&](LedgerData& data) {
        std::erase_if(data.categoryRules, [&](const CategoryRule& rule) { return rule.id == id; });
    });
}

void moveCategoryRule(Ledger& ledger, const Uuid& id, MoveDirection direction) {
    ledger.change([&](LedgerData& data) {
        auto& rules = data.categoryRules;
        const auto position =
            std::find_if(rules.begin(), rules.end(), [&](const CategoryRule& rule) { return rule.id == id; });
        if (position == rules.end()) return;
        if (direction == MoveDirection::up && position != rules.begin()) {
            std::iter_swap(position, position - 1);
        } else if (direction == MoveDirection::down && position + 1 != rules.end()) {
            std::iter_swap(position, position + 1);
        }
    });
}

std::optional<std::string> categoryByRules(const Ledger& ledger, std::string_view note, TransactionKind kind) {
    return CategoryRuleMatcher(ledger).categoryFor(note, kind);
}

int applyCategoryRules(Ledger& ledger) {
    const CategoryRuleMatcher rules(ledger);
    if (rules.empty()) return 0;

    return ledger.change([&](LedgerData& data) {
        int won = 0;
        SharedList<Transaction>& transactions = data.transactions;
        for (std::size_t index = 0; index < transactions.size(); ++index) {
            const Transaction& transaction = transactions[index];
            if (transaction.categoryID != fallbackCategoryID(transaction.kind) || transaction.transferToAccountID) {
                continue;
            }
            std::optional<std::string> match = rules.categoryFor(transaction.note, transaction.kind);
            if (!match) continue;
            ++won;
            // A rule naming the fallback itself wins, and the movement stays where it is.
            if (*match == transaction.categoryID) continue;
            transactions.update(index, [&](Transaction& changed) { changed.categoryID = std::move(*match); });
        }
        return won;
    });
}

}  // namespace vantello
