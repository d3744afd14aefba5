#pragma once
// The free text of a search, prepared once before the movements are scanned: the trimmed text,
// the amount it may stand for, the categories whose name contains it and, for pure ASCII text,
// the lower-cased bytes that let most notes be compared without Unicode folding.

#include "core/base/Decimal.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/TransactionFilter.hpp"

#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace vantello {

struct TransactionFilter::Query {
    std::string text;                        // trimmed; empty means no text condition
    std::optional<Decimal> amount;           // the text read as an amount ("12,50")
    std::set<std::string> categoryIDs;       // categories whose name contains the text
    std::optional<std::string> asciiNeedle;  // lower-cased text, only when it is pure ASCII

    [[nodiscard]] bool isEmpty() const { return text.empty(); }
    // Whether the note contains the text ignoring letter case and accents.
    [[nodiscard]] bool noteContainsText(std::string_view note) const;
    // The whole text condition: the note, the category's name or the exact amount.
    [[nodiscard]] bool matches(const Transaction& transaction) const;

    bool operator==(const Query&) const = default;
};

// Categories are looked up in the ledger's list of every category usable by movements.
[[nodiscard]] TransactionFilter::Query prepareQuery(const Ledger& ledger, std::string_view text);

}  // namespace vantello
