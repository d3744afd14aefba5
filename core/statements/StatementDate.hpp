#pragma once
// Reads the booking date of a statement row: "05/03/2024", "2024-03-05", "5.3.24", also with a
// month name ("5 mar 2024", "Apr 8, 2018"), as eight digits ("20240305", year first), and with
// a time of day after it, which is ignored.

#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/statements/CSVImportOptions.hpp"

#include <array>
#include <optional>
#include <string_view>

namespace vantello::StatementDate {

// The three numbers of a date written only with digits, in written order, with how many
// digits each had; nothing for any other text (a month name included).
struct WrittenNumbers {
    std::array<int, 3> values{};
    std::array<int, 3> digitCounts{};
};
[[nodiscard]] std::optional<WrittenNumbers> writtenNumbers(std::string_view cell);

// The calendar day the cell names under `order`: two-digit years are in the 2000s, years
// run from 1900 to 2200, and a day the month does not have (31/02) is refused. A month
// written as a name (Italian or English, full or abbreviated, any case, accents ignored)
// decides which part is the month whatever the order.
[[nodiscard]] std::optional<CivilDate> civilDate(std::string_view cell, CSVImportOptions::DateOrder order);

// Noon of that day in the calendar's zone, so that no zone shift moves it to another day.
[[nodiscard]] std::optional<Instant> read(std::string_view cell, CSVImportOptions::DateOrder order,
                                          const Calendar& calendar);

}  // namespace vantello::StatementDate
