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
// are left out, and so is a line holding only a quote, which opens no cell; cells keep their
// own spaces. The separator is detected when not given, and also when the one given cannot
// separate (a quote, a line break or a byte outside ASCII). The text is walked by
// user-perceived characters: a separator or quote carrying a combining mark is ordinary text.
// Never throws; ill-formed UTF-8 is kept as it is.
[[nodiscard]] Table parse(std::string_view text, std::optional<char> separator = std::nullopt);

// ";", tab or ",": whichever occurs most often outside quotes on the first line, ties going
// in that order; "," when none occurs.
[[nodiscard]] char detectSeparator(std::string_view text);

// How the separator of a statement was chosen, and the separator.
struct SeparatorGuess {
    char separator = ',';
    std::string_view rule;  // "firstLine", "consistentRows" or "default"
};

// The separator of a statement: the first line's, as `detectSeparator` finds it, when that line
// holds any candidate. A first line without one is a title ("Controvalori aggiornati al …") or
// a lone quote above the table; the separator is then the candidate that splits the most
// consecutive lines below it, two at least (the column names and a movement), into the same
// number of cells, ties going as in `detectSeparator`; "," when none does. Looks at a bounded
// number of lines, so its cost does not grow with the statement.
[[nodiscard]] SeparatorGuess guessSeparator(std::string_view text);

// One line of an exported file, its cells joined by the separator and quoted where needed so
// that `parse` reads them back.
[[nodiscard]] std::string line(const std::vector<std::string>& cells, char separator);

}  // namespace vantello::CSV
