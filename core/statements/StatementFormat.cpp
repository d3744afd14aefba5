#include "core/statements/StatementFormat.hpp"

#include <algorithm>
#include <cctype>
#include <string>

namespace vantello {

namespace {

// How far into the file the marks of a format are looked for: past an XML prolog and comments.
constexpr std::size_t headLength = 4096;

std::string upperCased(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return result;
}

}  // namespace

std::string_view rawValue(StatementFormat format) {
    switch (format) {
        case StatementFormat::csv: return "csv";
        case StatementFormat::ofx: return "ofx";
        case StatementFormat::qif: return "qif";
        case StatementFormat::camt: return "camt";
    }
    return "csv";
}

StatementFormat detectStatementFormat(std::string_view text) {
    if (text.starts_with(utf8ByteOrderMark)) text.remove_prefix(utf8ByteOrderMark.size());
    const std::size_t start = text.find_first_not_of(" \t\r\n");
    if (start == std::string_view::npos) return StatementFormat::csv;
    const std::string head = upperCased(text.substr(start, headLength));
    if (head.starts_with("OFXHEADER") || (head.starts_with('<') && head.find("<OFX>") != std::string::npos)) {
        return StatementFormat::ofx;
    }
    if (head.starts_with('<') && (head.find("CAMT.05") != std::string::npos ||
                                  head.find("BKTOCSTMR") != std::string::npos)) {
        return StatementFormat::camt;
    }
    if (head.starts_with("!TYPE:") || head.starts_with("!ACCOUNT") || head.starts_with("!OPTION")) {
        return StatementFormat::qif;
    }
    return StatementFormat::csv;
}

}  // namespace vantello
