#include "core/analysis/TransactionQuery.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/AmountParser.hpp"

#include <algorithm>

namespace vantello {

namespace {

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0x80) == 0; });
}

constexpr char asciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// `needle` is already lower case and not empty.
bool asciiContains(std::string_view haystack, std::string_view needle) {
    if (needle.size() > haystack.size()) return false;
    const std::size_t lastStart = haystack.size() - needle.size();
    for (std::size_t start = 0; start <= lastStart; ++start) {
        if (asciiLower(haystack[start]) != needle.front()) continue;
        std::size_t matched = 1;
        while (matched < needle.size() && asciiLower(haystack[start + matched]) == needle[matched]) ++matched;
        if (matched == needle.size()) return true;
    }
    return false;
}

}  // namespace

bool TransactionFilter::Query::noteContainsText(std::string_view note) const {
    if (text.empty()) return true;
    // An accented note ("Caffè") can still hold an ASCII text ("caffe") once folded, so the
    // byte comparison serves only notes that are ASCII themselves.
    if (asciiNeedle && isAscii(note)) return asciiContains(note, *asciiNeedle);
    return Text::containsIgnoringCaseAndAccents(note, text);
}

bool TransactionFilter::Query::matches(const Transaction& transaction) const {
    if (text.empty()) return true;
    if (amount && *amount == transaction.amount) return true;
    if (categoryIDs.contains(transaction.categoryID)) return true;
    return noteContainsText(transaction.note);
}

TransactionFilter::Query prepareQuery(const Ledger& ledger, std::string_view text) {
    TransactionFilter::Query query;
    query.text = Text::trimmed(text);
    if (query.text.empty()) return query;
    query.amount = AmountParser::parse(query.text);
    for (const TransactionCategory& category : ledger.allCategories()) {
        if (Text::containsIgnoringCaseAndAccents(category.name, query.text)) query.categoryIDs.insert(category.id);
    }
    if (isAscii(query.text)) {
        std::string lowered = query.text;
        for (char& c : lowered) c = asciiLower(c);
        query.asciiNeedle = std::move(lowered);
    }
    return query;
}

}  // namespace vantello
