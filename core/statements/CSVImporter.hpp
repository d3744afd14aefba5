#pragma once
// Turns the data rows of a statement table into candidate movements under the chosen options.
// The import screen converts the whole table again on every change of the options, so the
// work stays linear in the cells and never goes back to the text.

#include "core/base/Calendar.hpp"
#include "core/ledger/TransactionCategory.hpp"
#include "core/statements/CSV.hpp"
#include "core/statements/CSVImportOptions.hpp"
#include "core/statements/CSVImportRow.hpp"

#include <vector>

namespace vantello::CSVImporter {

// One result per data row, in table order: the header row and any row above it are skipped,
// and every row keeps its position in the table as its line number. `categories` (built-in and
// custom) recognise the category column by name; dates are noon of their day in `calendar`.
[[nodiscard]] std::vector<CSVImportRow> rows(const CSV::Table& table, const CSVImportOptions& options,
                                             const std::vector<TransactionCategory>& categories,
                                             const Calendar& calendar);

// The result of one row of cells; a column beyond the last cell reads as an empty cell.
[[nodiscard]] CSVImportRow row(const std::vector<std::string>& cells, int line,
                               const CSVImportOptions& options,
                               const std::vector<TransactionCategory>& categories,
                               const Calendar& calendar);

}  // namespace vantello::CSVImporter
