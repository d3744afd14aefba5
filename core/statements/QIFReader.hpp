#pragma once
// Reads the records of a QIF file's bank, credit-card and cash sections ("!Type:Bank",
// "!Type:CCard", "!Type:Cash", also "Oth A" and "Oth L"): D date, T or U amount, P payee,
// M memo, N number, each record ended by "^". Other sections are skipped.
//
// Dates: "05/03/2024", "3/5'24", "5-3-24", "5.3.2024", " 5/ 3/24" (Quicken pads with spaces),
// "2024-03-05". Two-digit years after "'" are in the 2000s, otherwise below 80 in the 2000s and
// from 80 in the 1900s. Whether the day or the month comes first is decided once for the whole
// file: the day when some date has a first number above 12 and none a second one above 12, the
// month in the opposite case; when every date fits both ways, the month when some date is written
// with "'" (the American Quicken form), else the day.
//
// QIF gives no id of its own: the record's date, amount, payee and number, with how many equal
// records came before it in the file, stand for one, so that an overlapping file read again
// names its records the same way.

#include "core/base/Calendar.hpp"
#include "core/statements/CSVImportRow.hpp"

#include <string_view>
#include <vector>

namespace vantello {

// One row per record, in file order, numbered by the line where the record begins.
[[nodiscard]] std::vector<CSVImportRow> readQIF(std::string_view text, const Calendar& calendar);

}  // namespace vantello
