#pragma once
// Reads the transactions (STMTTRN) of an OFX/QFX statement, bank or credit card, in either
// form: 1.x SGML, where an element has no closing tag, and 2.x XML.

#include "core/base/Calendar.hpp"
#include "core/statements/CSVImportRow.hpp"

#include <string_view>
#include <vector>

namespace vantello {

// One row per STMTTRN, in file order, numbered by the line where it begins. TRNAMT gives the
// kind by its sign; the day is the date DTPOSTED writes (its time and zone are not looked at:
// the bank's booking day is the day). FITID names the movement together with the account
// (ACCTID); CURDEF, or a CURRENCY aggregate of the transaction, gives the currency. The note is
// NAME and MEMO. Text that is not OFX gives no rows.
[[nodiscard]] std::vector<CSVImportRow> readOFX(std::string_view text, const Calendar& calendar);

}  // namespace vantello
