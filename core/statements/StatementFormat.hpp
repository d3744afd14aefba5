#pragma once
// The formats a bank statement can come in, told apart by the file's content, never its name.

#include <string_view>

namespace vantello {

enum class StatementFormat {
    csv,   // anything not recognised as one of the others
    ofx,   // OFX/QFX 1.x (SGML, "OFXHEADER:100") and 2.x (XML)
    qif,   // Quicken Interchange Format, "!Type:Bank", "!Type:CCard", "!Type:Cash"
    camt,  // ISO 20022 bank-to-customer statement, report or notification (camt.053/052/054)
};

inline constexpr std::string_view utf8ByteOrderMark = "\xEF\xBB\xBF";

// "csv", "ofx", "qif", "camt".
[[nodiscard]] std::string_view rawValue(StatementFormat format);

// Looks at the beginning of the text (UTF-8, after any byte-order mark): an OFX header or
// an <OFX> element; an ISO 20022 cash-management document; a QIF "!Type:", "!Account" or
// "!Option" line first; otherwise CSV.
[[nodiscard]] StatementFormat detectStatementFormat(std::string_view text);

}  // namespace vantello
