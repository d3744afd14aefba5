#pragma once
// The ledger's category rules made ready once for filing many movements: preparing them looks up
// every rule's category, which would otherwise be repeated for each movement.

#include "core/ledger/TransactionKind.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantello {

class Ledger;

class CategoryRuleMatcher {
public:
    // Takes the rules as they stand: later changes to the ledger's rules are not seen.
    explicit CategoryRuleMatcher(const Ledger& ledger);

    [[nodiscard]] bool empty() const { return expenseRules_.empty() && incomeRules_.empty(); }
    // The category of the first rule whose pattern occurs in `note` ignoring case and accents,
    // among those that can file a movement of `kind`; nothing when none does.
    [[nodiscard]] std::optional<std::string> categoryFor(std::string_view note, TransactionKind kind) const;

private:
    struct Rule {
        std::string pattern;  // trimmed, never empty
        std::string categoryID;
    };

    std::vector<Rule> expenseRules_;
    std::vector<Rule> incomeRules_;
};

}  // namespace vantello
