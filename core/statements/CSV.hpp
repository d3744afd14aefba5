#pragma once
// Comma-separated text in and out: the tokenizer that turns a bank statement into a table of
// text cells, the separator guess it relies on, and the quoting of one exported line.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantello::CSV {

using Row = std::vector<std::string>;
using Table = std::vector<Row>;

// The table the text holds. A leading byte-order mark is dropped; quoted cells may hold the
// separator, line breaks and doubled quotes; rows whose cells are all blank (spaces and tabs)
// are left out; cells keep their own spaces. The separator is detected when not given, and
// also when the one given cannot separate (a quote, a line break or a byte outside ASCII).
// The text is walked by user-perceived characters: a separator or quote carrying a combining
// mark is ordinary text. Never throws; ill-formed UTF-8 is kept as it is.
[[nodiscard]] Table parse(std::string_view text, std::optional<char> separator = std::nullopt);

// ";", tab or ",": whichever occurs most often outside quotes on the first line, ties going
// in that order; "," when none occurs.
[[nodiscard]] char detectSeparator(std::string_view text);

// One line of an exported file, its cells joined by the separator and quoted where needed so
// that `parse` reads them back.
[[nodiscard]] std::string line(const std::vector<std::string>& cells, char separator);

}  // namespace vantello::CSV
