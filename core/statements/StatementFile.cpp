#include "core/statements/StatementFile.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/base/Localization.hpp"

#include <unicode/ucnv.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <climits>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace vantello {
namespace {

std::string fileNameOf(const std::filesystem::path& path) {
    const auto name = path.filename();
    return (name.empty() ? path.parent_path().filename() : name).string();
}

bool isValidUtf8(std::string_view bytes) {
    const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    const auto length = static_cast<std::int64_t>(bytes.size());
    for (std::int64_t offset = 0; offset < length;) {
        if (data[offset] < 0x80) {
            ++offset;
            continue;
        }
        UChar32 c = 0;
        U8_NEXT(data, offset, length, c);
        if (c < 0) return false;
    }
    return true;
}

// Through an ICU converter; ill-formed input becomes U+FFFD. Nothing when the converter is
// missing or the text is too long for ICU.
std::optional<std::string> decoded(std::string_view bytes, const char* encoding) {
    if (bytes.size() > static_cast<std::size_t>(INT32_MAX)) return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(ucnv_open(encoding, &status), &ucnv_close);
    if (U_FAILURE(status)) return std::nullopt;
    const icu::UnicodeString text(bytes.data(), static_cast<std::int32_t>(bytes.size()), converter.get(), status);
    if (U_FAILURE(status) || text.isBogus()) return std::nullopt;
    std::string result;
    text.toUTF8String(result);
    return result;
}

// UTF-16 written without a byte-order mark still gives itself away: the NUL high bytes of its
// ASCII characters all sit at odd offsets (little-endian) or all at even ones (big-endian).
const char* bomlessUtf16(std::string_view bytes) {
    const std::size_t sample = std::min<std::size_t>(bytes.size(), 1024) & ~std::size_t{1};
    std::size_t evenNuls = 0;
    std::size_t oddNuls = 0;
    for (std::size_t index = 0; index < sample; ++index) {
        if (bytes[index] == '\0') ++(index % 2 == 0 ? evenNuls : oddNuls);
    }
    // Most of the characters of a statement are ASCII.
    const std::size_t half = sample / 2;
    if (half == 0 || bytes.size() % 2 != 0) return nullptr;
    if (oddNuls * 2 > half && evenNuls == 0) return "UTF-16LE";
    if (evenNuls * 2 > half && oddNuls == 0) return "UTF-16BE";
    return nullptr;
}

bool isDigit(std::uint8_t byte) { return byte >= '0' && byte <= '9'; }

// Windows-1252 covers ISO 8859-1 for every printable character, so it reads most 8-bit
// statements. ISO 8859-15 differs where it matters to money: its euro sign is 0xA4, the
// "¤" of the other two. So 0xA4 next to a digit (or one space away from it) reads as a euro
// sign, unless a byte of 0x80...0x9F shows Windows-1252 (printable there, controls in ISO 8859).
const char* eightBitEncoding(std::string_view text) {
    const auto byteAt = [&](std::size_t index) { return static_cast<std::uint8_t>(text[index]); };
    bool euroNearDigit = false;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const std::uint8_t byte = byteAt(index);
        if (byte >= 0x80 && byte <= 0x9F) return "windows-1252";
        if (byte != 0xA4 || euroNearDigit) continue;
        for (const int direction : {-1, 1}) {
            std::size_t near = index;
            for (int step = 0; step < 2; ++step) {
                if ((direction < 0 && near == 0) || (direction > 0 && near + 1 >= text.size())) break;
                near = direction < 0 ? near - 1 : near + 1;
                if (isDigit(byteAt(near))) euroNearDigit = true;
                if (byteAt(near) != ' ' && byteAt(near) != 0xA0) break;
            }
        }
    }
    return euroNearDigit ? "ISO-8859-15" : "windows-1252";
}

std::optional<std::string> utf8Text(std::string_view bytes) {
    constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
    constexpr std::string_view utf32LittleMark{"\xFF\xFE\0\0", 4};
    constexpr std::string_view utf32BigMark{"\0\0\xFE\xFF", 4};
    constexpr std::string_view utf16LittleMark = "\xFF\xFE";
    constexpr std::string_view utf16BigMark = "\xFE\xFF";

    if (bytes.starts_with(utf8Mark)) {
        bytes.remove_prefix(utf8Mark.size());
        return isValidUtf8(bytes) ? std::string(bytes) : decoded(bytes, "UTF-8");
    }
    if (bytes.starts_with(utf32LittleMark)) return decoded(bytes.substr(4), "UTF-32LE");
    if (bytes.starts_with(utf32BigMark)) return decoded(bytes.substr(4), "UTF-32BE");
    if (bytes.starts_with(utf16LittleMark)) return decoded(bytes.substr(2), "UTF-16LE");
    if (bytes.starts_with(utf16BigMark)) return decoded(bytes.substr(2), "UTF-16BE");
    if (const char* utf16 = bomlessUtf16(bytes)) return decoded(bytes, utf16);
    if (isValidUtf8(bytes)) return std::string(bytes);
    return decoded(bytes, eightBitEncoding(bytes));
}

bool isPadding(char c) { return c == '\0' || c == '\x1A' || c == ' ' || c == '\t'; }
bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

// Fixed-size records and old editors pad the end with NULs, 0x1A or blanks. Blanks before the
// first NUL or 0x1A that end the last line belong to its last cell and are kept.
void dropTrailingPadding(std::string& text) {
    std::size_t start = text.size();
    while (start > 0 && isPadding(text[start - 1])) --start;
    if (start == 0 || isLineEnd(text[start - 1])) {
        text.erase(start);
        return;
    }
    const auto filler = text.find_first_of(std::string_view("\0\x1A", 2), start);
    if (filler != std::string::npos) text.erase(filler);
}

}  // namespace

StatementFileError::StatementFileError(const std::filesystem::path& path)
    : StatementFileError(L10n::key("Non riesco a leggere «{file}»…"), path) {}

StatementFileError::StatementFileError(const std::filesystem::path& path, const FileError& cause)
    : StatementFileError(cause.isNotRegular() ? L10n::key("«{file}» non è un file normale.")
                                              : L10n::key("Non riesco a leggere «{file}»…"),
                         path) {}

StatementFileError::StatementFileError(std::string_view italianPattern, const std::filesystem::path& path)
    : UserError(L10n::tr(italianPattern, {{"file", fileNameOf(path)}})) {}

std::string readStatementText(const std::filesystem::path& path) {
    std::string bytes;
    try {
        bytes = readWholeFile(path);
    } catch (const FileError& error) {
        throw StatementFileError(path, error);
    }
    auto text = decodeStatementBytes(bytes);
    if (!text) throw StatementFileError(path);
    return std::move(*text);
}

std::optional<std::string> decodeStatementBytes(std::string_view bytes) {
    auto text = utf8Text(bytes);
    if (!text) return text;
    // A file saved again by a tool that adds its own mark starts with two; the text has none.
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    std::size_t marks = 0;
    while (std::string_view(*text).substr(marks).starts_with(mark)) marks += mark.size();
    text->erase(0, marks);
    dropTrailingPadding(*text);
    return text;
}

std::string statementWithoutRowsMessage(const std::filesystem::path& path) {
    return L10n::tr("«{file}» non contiene righe da importare.", {{"file", fileNameOf(path)}});
}

}  // namespace vantello
