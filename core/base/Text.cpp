#include "core/base/Text.hpp"

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>

namespace vantello::Text {

namespace {

// ICU takes 32-bit lengths; longer texts are read up to that limit rather than overflowing.
std::int32_t icuLength(std::string_view text) {
    return text.size() > static_cast<std::size_t>(INT32_MAX) ? INT32_MAX
                                                             : static_cast<std::int32_t>(text.size());
}

icu::UnicodeString toUnicode(std::string_view text) {
    // fromUTF8 reads ill-formed sequences as U+FFFD.
    return icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), icuLength(text)));
}

std::string toUtf8(const icu::UnicodeString& text) {
    std::string result;
    text.toUTF8String(result);
    return result;
}

// Search and category rules fold every note of a ledger, and most notes are plain ASCII:
// the checks below let those skip ICU entirely.
bool isAscii(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080ULL;
    std::size_t index = 0;
    for (; index + 8 <= text.size(); index += 8) {
        std::uint64_t chunk = 0;
        std::memcpy(&chunk, text.data() + index, sizeof chunk);
        if (chunk & highBits) return false;
    }
    for (; index < text.size(); ++index) {
        if (static_cast<unsigned char>(text[index]) & 0x80) return false;
    }
    return true;
}

// The characters of ASCII with the White_Space property: tab, line feed, vertical tab, form feed,
// carriage return and space.
constexpr bool isAsciiWhitespace(std::uint8_t byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

constexpr char asciiLower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

std::string asciiLowered(std::string_view text) {
    std::string result(text);
    for (char& character : result) character = asciiLower(character);
    return result;
}

std::string foldedWithIcu(std::string_view text) {
    icu::UnicodeString source = toUnicode(text);
    source.foldCase(U_FOLD_CASE_DEFAULT);
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* nfd = icu::Normalizer2::getNFDInstance(status);
    if (U_FAILURE(status)) return toUtf8(source);
    const icu::UnicodeString decomposed = nfd->normalize(source, status);
    if (U_FAILURE(status)) return toUtf8(source);
    icu::UnicodeString stripped;
    for (std::int32_t index = 0; index < decomposed.length();) {
        const UChar32 codePoint = decomposed.char32At(index);
        index += U16_LENGTH(codePoint);
        if (u_charType(codePoint) != U_NON_SPACING_MARK) stripped.append(codePoint);
    }
    return toUtf8(stripped);
}

// Italian notes are mostly ASCII with a few accented Latin letters. Folding is context-free and
// the decomposition of these letters is a base letter plus marks that are dropped, so folding
// them one by one gives exactly what ICU gives for the whole text.
constexpr UChar32 latinTableEnd = 0x250;

const std::array<std::string, latinTableEnd>& latinFoldTable() {
    static const auto table = [] {
        std::array<std::string, latinTableEnd> built;
        for (UChar32 codePoint = 0; codePoint < latinTableEnd; ++codePoint) {
            if (u_charType(codePoint) == U_NON_SPACING_MARK) continue;
            char encoded[U8_MAX_LENGTH];
            std::int32_t length = 0;
            U8_APPEND_UNSAFE(encoded, length, codePoint);
            built[static_cast<std::size_t>(codePoint)] = foldedWithIcu(std::string_view(encoded, length));
        }
        return built;
    }();
    return table;
}

// Folds through the Latin table; nothing when a code point lies outside it (or is ill-formed).
std::optional<std::string> foldedWithLatinTable(std::string_view text) {
    const auto& table = latinFoldTable();
    std::string result;
    result.reserve(text.size());
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const std::int64_t length = static_cast<std::int64_t>(text.size());
    for (std::int64_t index = 0; index < length;) {
        UChar32 codePoint = 0;
        U8_NEXT(bytes, index, length, codePoint);
        if (codePoint < 0 || codePoint >= latinTableEnd) return std::nullopt;
        if (codePoint < 0x80) {
            result.push_back(asciiLower(static_cast<char>(codePoint)));
        } else {
            result.append(table[static_cast<std::size_t>(codePoint)]);
        }
    }
    return result;
}

bool asciiEqualIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t index = 0; index < a.size(); ++index) {
        if (asciiLower(a[index]) != asciiLower(b[index])) return false;
    }
    return true;
}

// `loweredNeedle` is already lower case.
bool asciiContainsIgnoringCase(std::string_view haystack, std::string_view loweredNeedle) {
    if (loweredNeedle.empty()) return true;
    if (loweredNeedle.size() > haystack.size()) return false;
    const char first = loweredNeedle.front();
    const std::size_t lastStart = haystack.size() - loweredNeedle.size();
    for (std::size_t start = 0; start <= lastStart; ++start) {
        if (asciiLower(haystack[start]) != first) continue;
        std::size_t matched = 1;
        while (matched < loweredNeedle.size() &&
               asciiLower(haystack[start + matched]) == loweredNeedle[matched]) {
            ++matched;
        }
        if (matched == loweredNeedle.size()) return true;
    }
    return false;
}

// A search folds the same needle against every note; remembering the last one per thread
// saves folding it again for each.
const std::string& foldedNeedle(std::string_view needle) {
    thread_local std::string lastNeedle;
    thread_local std::string lastFolded;
    thread_local bool hasLast = false;
    if (!hasLast || lastNeedle != needle) {
        lastFolded = folded(needle);
        lastNeedle.assign(needle);
        hasLast = true;
    }
    return lastFolded;
}

}  // namespace

bool isWhitespace(char32_t codePoint) {
    return u_isUWhiteSpace(static_cast<UChar32>(codePoint)) != 0;
}

std::string trimmed(std::string_view text) { return std::string(trimmedView(text)); }

std::string_view trimmedView(std::string_view text) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const std::size_t length = text.size();
    std::size_t start = 0;
    while (start < length) {
        if (bytes[start] < 0x80) {
            if (!isAsciiWhitespace(bytes[start])) break;
            ++start;
            continue;
        }
        auto next = static_cast<std::int64_t>(start);
        UChar32 codePoint = 0;
        U8_NEXT_OR_FFFD(bytes, next, static_cast<std::int64_t>(length), codePoint);
        if (!isWhitespace(static_cast<char32_t>(codePoint))) break;
        start = static_cast<std::size_t>(next);
    }
    std::size_t end = length;
    while (end > start) {
        if (bytes[end - 1] < 0x80) {
            if (!isAsciiWhitespace(bytes[end - 1])) break;
            --end;
            continue;
        }
        // A character takes at most four bytes, so reading back needs no more than those
        // (and keeps ICU's 32-bit offsets small whatever the length of the text).
        const std::size_t windowStart = std::max(start, end - std::min<std::size_t>(end, U8_MAX_LENGTH));
        auto previous = static_cast<std::int32_t>(end - windowStart);
        UChar32 codePoint = 0;
        U8_PREV_OR_FFFD(bytes + windowStart, 0, previous, codePoint);
        if (!isWhitespace(static_cast<char32_t>(codePoint))) break;
        end = windowStart + static_cast<std::size_t>(previous);
    }
    // Ill-formed bytes inside the kept part stay as they were; only white space is removed.
    return text.substr(start, end - start);
}

std::string folded(std::string_view text) {
    if (isAscii(text)) return asciiLowered(text);
    if (auto latin = foldedWithLatinTable(text)) return std::move(*latin);
    return foldedWithIcu(text);
}

bool equalIgnoringCaseAndAccents(std::string_view a, std::string_view b) {
    if (isAscii(a) && isAscii(b)) return asciiEqualIgnoringCase(a, b);
    return folded(a) == folded(b);
}

bool containsIgnoringCaseAndAccents(std::string_view haystack, std::string_view needle) {
    if (needle.empty()) return true;
    const std::string& foldedQuery = foldedNeedle(needle);
    if (isAscii(haystack)) {
        // A folded ASCII text is ASCII, so a needle that folds to anything else cannot occur.
        return isAscii(foldedQuery) && asciiContainsIgnoringCase(haystack, foldedQuery);
    }
    return folded(haystack).find(foldedQuery) != std::string::npos;
}

std::string lowercased(std::string_view text) {
    if (isAscii(text)) return asciiLowered(text);
    icu::UnicodeString source = toUnicode(text);
    source.toLower(icu::Locale::getRoot());
    return toUtf8(source);
}

std::size_t characterCount(std::string_view text) {
    if (isAscii(text)) {
        // In ASCII only CR LF forms a cluster of more than one character.
        std::size_t count = text.size();
        for (std::size_t index = 1; index < text.size(); ++index) {
            if (text[index - 1] == '\r' && text[index] == '\n') --count;
        }
        return count;
    }
    // Break iterators are costly to create and not shareable between threads.
    thread_local std::unique_ptr<icu::BreakIterator> characters;
    UErrorCode status = U_ZERO_ERROR;
    if (!characters) {
        characters.reset(icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
        if (U_FAILURE(status)) characters.reset();
    }
    std::size_t count = 0;
    if (characters) {
        status = U_ZERO_ERROR;
        UText* utf8Text = utext_openUTF8(nullptr, text.data(), icuLength(text), &status);
        if (U_SUCCESS(status)) {
            characters->setText(utf8Text, status);
            if (U_SUCCESS(status)) {
                characters->first();
                while (characters->next() != icu::BreakIterator::DONE) ++count;
            }
        }
        utext_close(utf8Text);
        // Leave no pointer to the caller's text behind.
        characters->setText(icu::UnicodeString());
        if (U_SUCCESS(status)) return count;
    }
    // Without a break iterator, code points are the closest count available.
    return static_cast<std::size_t>(toUnicode(text).countChar32());
}

}  // namespace vantello::Text
