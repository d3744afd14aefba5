#include "core/statements/StatementAmount.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/AmountParser.hpp"

#include <unicode/utf8.h>

#include <cstdint>
#include <string>

namespace vantello {
namespace {

constexpr std::string_view minusSign = "\xE2\x88\x92";  // U+2212

bool isAsciiWhitespace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// The cell without white space and euro signs anywhere in it.
std::string compacted(std::string_view cell) {
    std::string result;
    result.reserve(cell.size());
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(cell.data());
    const auto length = static_cast<std::int64_t>(cell.size());
    for (std::int64_t offset = 0; offset < length;) {
        if (bytes[offset] < 0x80) {
            if (!isAsciiWhitespace(cell[static_cast<std::size_t>(offset)])) {
                result.push_back(cell[static_cast<std::size_t>(offset)]);
            }
            ++offset;
            continue;
        }
        const std::int64_t start = offset;
        UChar32 c = 0;
        U8_NEXT(bytes, offset, length, c);
        if (c == 0x20AC || (c >= 0 && Text::isWhitespace(static_cast<char32_t>(c)))) continue;
        result.append(cell.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(offset - start)));
    }
    return result;
}

}  // namespace

StatementAmount StatementAmount::read(std::string_view cell) {
    const std::string compact = compacted(cell);
    std::string_view text = compact;
    if (text.empty()) return {};
    bool negative = false;
    if (text.size() >= 2 && text.front() == '(' && text.back() == ')') {
        text = text.substr(1, text.size() - 2);
        negative = true;
    }
    if (text.starts_with('-')) {
        text.remove_prefix(1);
        negative = true;
    } else if (text.starts_with(minusSign)) {
        text.remove_prefix(minusSign.size());
        negative = true;
    } else if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const auto magnitude = AmountParser::parse(text);
    if (!magnitude) return {Status::unreadable, Decimal()};
    return {Status::amount, negative ? -*magnitude : *magnitude};
}

}  // namespace vantello
