#pragma once
// Opening a bank statement for import, the same way for the import screen and the command
// line: the file's text, its separator, the table, the guessed options, the user's own choices
// over them, and what every data row became.

#include "core/base/Calendar.hpp"
#include "core/ledger/Transaction.hpp"
#include "core/ledger/TransactionCategory.hpp"
#include "core/statements/CSV.hpp"
#include "core/statements/CSVImportOptions.hpp"
#include "core/statements/CSVImportRow.hpp"
#include "core/statements/StatementFormat.hpp"

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace vantello {

// What the user chose instead of the guess; whatever is left empty stays as guessed.
struct CSVImportOverrides {
    std::optional<char> separator;
    std::optional<int> headerRow;  // a header at this row, even where none was found
    bool noHeader = false;         // no header at all; `headerRow` wins over it
    std::optional<int> dateColumn;
    std::optional<CSVImportOptions::DateOrder> dateOrder;
    std::optional<int> amountColumn;  // one signed column
    // Income and expenses in two columns; either one alone switches to two columns too, the
    // other staying as guessed. They win over `amountColumn`.
    std::optional<int> incomeColumn;
    std::optional<int> expenseColumn;
    std::optional<int> descriptionColumn;
    std::optional<int> categoryColumn;

    // `guessed` with these choices made over it (the separator aside, which comes before it).
    [[nodiscard]] CSVImportOptions appliedTo(CSVImportOptions guessed) const;

    bool operator==(const CSVImportOverrides&) const = default;
};

// An opened statement. `rows` holds one result per data row (per record for OFX, QIF and
// CAMT), in file order. The separator, table and options belong to CSV and stay empty otherwise.
struct StatementImport {
    StatementFormat format = StatementFormat::csv;  // detected from the content
    char separator = ',';  // chosen by the user or detected
    CSV::Table table;
    CSVImportOptions guessedOptions;
    CSVImportOptions options;  // the guess with the user's choices over it, as the rows were read
    CSVGuessRules guessedBy;   // the rule behind each option and the separator, "user" for a choice
    std::vector<CSVImportRow> rows;

    // The movements of the rows that could be read, in table order; the second form moves them
    // out, leaving every row in place.
    [[nodiscard]] std::vector<Transaction> transactions() const&;
    [[nodiscard]] std::vector<Transaction> transactions() &&;
    // The rows that cannot be imported, in table order; they point into `rows`.
    [[nodiscard]] std::vector<const CSVImportRow*> problems() const;
};

// Reads the file (see readStatementText), tells its format from the content and turns it into
// rows; for CSV under the guessed options and the user's choices, which other formats ignore.
// `categories` (built-in and custom) recognise the category column by name;
// dates are noon of their day in `calendar`. Throws StatementFileError, and UserError with
// statementWithoutRowsMessage when no data row is left.
[[nodiscard]] StatementImport openStatement(const std::filesystem::path& file, const CSVImportOverrides& overrides,
                                            const std::vector<TransactionCategory>& categories,
                                            const Calendar& calendar);

// The same for text already read (UTF-8); `file` is the file it came from, named in the error.
[[nodiscard]] StatementImport openStatementText(std::string_view text, const std::filesystem::path& file,
                                                const CSVImportOverrides& overrides,
                                                const std::vector<TransactionCategory>& categories,
                                                const Calendar& calendar);

}  // namespace vantello
