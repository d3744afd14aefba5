#include "core/ledger/AmountParser.hpp"

#include "core/base/Text.hpp"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <cstdint>
#include <memory>
#include <string>

namespace vantello::AmountParser {
namespace {

constexpr char32_t euroSign = U'\u20AC';

bool isAmountCharacter(char32_t c) {
    return (c >= U'0' && c <= U'9') || c == U',' || c == U'.';
}

bool isDroppedCharacter(char32_t c) {
    return c == euroSign || Text::isWhitespace(c);
}

// Cleaning walks user-perceived characters, so a digit carrying a combining mark is not a
// digit. Three routes give the same answer, fastest first:
// - plain ASCII: every byte is a character of its own (CR LF is one character, but both halves
//   are blanks and dropped anyway);
// - only ASCII, blanks and "€": none of these code points joins a neighbour into a longer
//   character, so they are walked one by one without break iteration;
// - anything else goes through ICU's character boundaries.
enum class Cleaning { done, refused, needsCharacterBoundaries };

Cleaning cleanASCII(std::string_view text, std::string& cleaned) {
    for (char byte : text) {
        const auto c = static_cast<char32_t>(static_cast<unsigned char>(byte));
        if (c >= 0x80) return Cleaning::needsCharacterBoundaries;
        if (isAmountCharacter(c)) {
            cleaned.push_back(byte);
        } else if (!Text::isWhitespace(c)) {
            return Cleaning::refused;
        }
    }
    return Cleaning::done;
}

// Walks code points; also the UTF-8 check, so the last route only ever sees well-formed text.
Cleaning cleanCodePoints(std::string_view text, std::string& cleaned) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int64_t>(text.size());
    bool simple = true;
    for (std::int64_t offset = 0; offset < length;) {
        UChar32 c;
        U8_NEXT(bytes, offset, length, c);
        if (c < 0) return Cleaning::refused;
        if (!simple) continue;
        const auto point = static_cast<char32_t>(c);
        if (isAmountCharacter(point)) {
            cleaned.push_back(static_cast<char>(point));
        } else if (!isDroppedCharacter(point)) {
            simple = false;
        }
    }
    return simple ? Cleaning::done : Cleaning::needsCharacterBoundaries;
}

// A character (grapheme cluster) is kept only when it is one ASCII digit or separator; it is
// dropped when it is "€" alone or starts with a blank (CR LF, a blank carrying marks).
bool cleanCharacters(std::string_view text, std::string& cleaned) {
    // Boundaries are 32-bit offsets; no amount is anywhere near that long.
    if (text.size() > static_cast<std::size_t>(INT32_MAX)) return false;
    UErrorCode status = U_ZERO_ERROR;
    // One iterator per thread: creating one costs far more than a whole parse.
    thread_local std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (!iterator) return false;

    status = U_ZERO_ERROR;
    UText utf8 = UTEXT_INITIALIZER;
    utext_openUTF8(&utf8, text.data(), static_cast<std::int64_t>(text.size()), &status);
    iterator->setText(&utf8, status);
    utext_close(&utf8);
    if (U_FAILURE(status)) return false;

    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    for (std::int32_t start = iterator->first(), end = iterator->next();
         end != icu::BreakIterator::DONE; start = end, end = iterator->next()) {
        std::int32_t offset = start;
        UChar32 first;
        U8_NEXT(bytes, offset, end, first);
        const auto point = static_cast<char32_t>(first);
        const bool single = offset == end;
        if (single && isAmountCharacter(point)) {
            cleaned.push_back(static_cast<char>(point));
        } else if (Text::isWhitespace(point) || (single && point == euroSign)) {
            continue;
        } else {
            return false;
        }
    }
    return true;
}

bool clean(std::string_view text, std::string& cleaned) {
    switch (cleanASCII(text, cleaned)) {
        case Cleaning::done: return true;
        case Cleaning::refused: return false;
        case Cleaning::needsCharacterBoundaries: break;
    }
    cleaned.clear();
    switch (cleanCodePoints(text, cleaned)) {
        case Cleaning::done: return true;
        case Cleaning::refused: return false;
        case Cleaning::needsCharacterBoundaries: break;
    }
    cleaned.clear();
    return cleanCharacters(text, cleaned);
}

bool isSeparator(char c) { return c == ',' || c == '.'; }

// With more than one group, the first holds 1 to 3 digits and every later one exactly 3.
// A single group may be of any length ("1234567", or empty as in ",50").
bool isWellGrouped(std::string_view integerPart) {
    if (integerPart.find_first_of(",.") == std::string_view::npos) return true;
    std::size_t groupStart = 0;
    bool first = true;
    for (std::size_t at = 0; at <= integerPart.size(); ++at) {
        if (at < integerPart.size() && !isSeparator(integerPart[at])) continue;
        const auto length = at - groupStart;
        if (first ? (length < 1 || length > 3) : length != 3) return false;
        first = false;
        groupStart = at + 1;
    }
    return true;
}

std::optional<Decimal> readCleaned(std::string_view cleaned) {
    if (cleaned.empty()) return std::nullopt;

    std::string_view integerPart = cleaned;
    std::string_view fraction;
    const auto last = cleaned.find_last_of(",.");
    if (last != std::string_view::npos) {
        const auto tailLength = cleaned.size() - last - 1;
        if (tailLength == 1 || tailLength == 2) {
            integerPart = cleaned.substr(0, last);
            fraction = cleaned.substr(last + 1);
            // The decimal separator cannot also group thousands: 1,250,50 and 1.250.00.
            if (integerPart.find(cleaned[last]) != std::string_view::npos) return std::nullopt;
        } else if (tailLength != 3) {
            // A trailing separator ("12,") or a long tail ("1,2345"). A tail of three always
            // means grouping, whichever the character ("12.000", "1,250", "0,125").
            return std::nullopt;
        }
    }
    if (!isWellGrouped(integerPart)) return std::nullopt;

    std::string canonical;
    canonical.reserve(cleaned.size() + 1);
    for (char c : integerPart) {
        if (isSeparator(c) || (c == '0' && canonical.empty())) continue;
        canonical.push_back(c);
    }
    if (canonical.empty()) canonical.push_back('0');
    while (!fraction.empty() && fraction.back() == '0') fraction.remove_suffix(1);
    if (!fraction.empty()) {
        canonical.push_back('.');
        canonical.append(fraction);
    }
    return Decimal::fromCanonicalAmount(canonical);
}

}  // namespace

std::optional<Decimal> parse(std::string_view text) {
    std::string cleaned;
    cleaned.reserve(text.size());
    if (!clean(text, cleaned)) return std::nullopt;
    return readCleaned(cleaned);
}

}  // namespace vantello::AmountParser
