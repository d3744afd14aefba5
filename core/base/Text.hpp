#pragma once
// Unicode text helpers over UTF-8 strings (ICU underneath). Invalid UTF-8 never crashes:
// ill-formed bytes read as U+FFFD.

#include <cstddef>
#include <string>
#include <string_view>

namespace vantello::Text {

// Whether a code point has the Unicode White_Space property (spaces, NBSP, line breaks...).
[[nodiscard]] bool isWhitespace(char32_t codePoint);

// Removes leading and trailing white space, line breaks included.
[[nodiscard]] std::string trimmed(std::string_view text);
// The same, as a part of `text` itself; ill-formed bytes are never white space.
[[nodiscard]] std::string_view trimmedView(std::string_view text);

// Case-folded, accents removed: the form every "ignoring case and accents" comparison uses.
// folded("SVAGÓ") == folded("svago").
[[nodiscard]] std::string folded(std::string_view text);
[[nodiscard]] bool equalIgnoringCaseAndAccents(std::string_view a, std::string_view b);
// Whether `needle` occurs in `haystack` ignoring case and accents; an empty needle is found.
[[nodiscard]] bool containsIgnoringCaseAndAccents(std::string_view haystack, std::string_view needle);

// Full Unicode lower-casing (locale-independent).
[[nodiscard]] std::string lowercased(std::string_view text);

// Number of user-perceived characters (extended grapheme clusters): an emoji counts one.
[[nodiscard]] std::size_t characterCount(std::string_view text);

}  // namespace vantello::Text
