#include "core/statements/StatementImport.hpp"

#include "core/base/UserError.hpp"
#include "core/statements/CAMTReader.hpp"
#include "core/statements/CSVImporter.hpp"
#include "core/statements/OFXReader.hpp"
#include "core/statements/QIFReader.hpp"
#include "core/statements/StatementFile.hpp"

#include <utility>

namespace vantello {

CSVImportOptions CSVImportOverrides::appliedTo(CSVImportOptions options) const {
    if (noHeader) options.hasHeader = false;
    if (headerRow) {
        options.hasHeader = true;
        options.headerRow = *headerRow;
    }
    if (dateColumn) options.dateColumn = dateColumn;
    if (dateOrder) options.dateOrder = *dateOrder;
    if (amountColumn) {
        options.amountMode = CSVImportOptions::AmountMode::signed_;
        options.amountColumn = amountColumn;
    }
    if (incomeColumn || expenseColumn) {
        options.amountMode = CSVImportOptions::AmountMode::separate;
        if (incomeColumn) options.incomeColumn = incomeColumn;
        if (expenseColumn) options.expenseColumn = expenseColumn;
    }
    if (descriptionColumn) options.descriptionColumn = descriptionColumn;
    if (categoryColumn) options.categoryColumn = categoryColumn;
    return options;
}

std::vector<Transaction> StatementImport::transactions() const& {
    std::vector<Transaction> result;
    for (const CSVImportRow& row : rows) {
        if (row.transaction) result.push_back(*row.transaction);
    }
    return result;
}

std::vector<Transaction> StatementImport::transactions() && {
    std::vector<Transaction> result;
    for (CSVImportRow& row : rows) {
        if (row.transaction) result.push_back(std::move(*row.transaction));
    }
    return result;
}

std::vector<const CSVImportRow*> StatementImport::problems() const {
    std::vector<const CSVImportRow*> result;
    for (const CSVImportRow& row : rows) {
        if (!row.transaction) result.push_back(&row);
    }
    return result;
}

StatementImport openStatement(const std::filesystem::path& file, const CSVImportOverrides& overrides,
                              const std::vector<TransactionCategory>& categories, const Calendar& calendar) {
    return openStatementText(readStatementText(file), file, overrides, categories, calendar);
}

StatementImport openStatementText(std::string_view text, const std::filesystem::path& file,
                                  const CSVImportOverrides& overrides,
                                  const std::vector<TransactionCategory>& categories, const Calendar& calendar) {
    StatementImport statement;
    statement.format = detectStatementFormat(text);
    if (statement.format != StatementFormat::csv) {
        if (text.starts_with(utf8ByteOrderMark)) text.remove_prefix(utf8ByteOrderMark.size());
        statement.rows = statement.format == StatementFormat::ofx   ? readOFX(text, calendar)
                         : statement.format == StatementFormat::qif ? readQIF(text, calendar)
                                                                    : readCAMT(text, calendar);
        if (statement.rows.empty()) throw UserError(statementWithoutRowsMessage(file));
        return statement;
    }
    const CSV::SeparatorGuess separator = CSV::guessSeparator(text);
    statement.separator = overrides.separator ? *overrides.separator : separator.separator;
    statement.table = CSV::parse(text, statement.separator);
    CSVImportGuess guess = CSVImportGuess::of(statement.table);
    statement.guessedOptions = guess.options;
    statement.options = overrides.appliedTo(statement.guessedOptions);
    statement.guessedBy = rulesAfterChoices(std::move(guess.rules), statement.guessedOptions, statement.options);
    statement.guessedBy["separator"] = overrides.separator ? "user" : separator.rule;
    statement.rows = CSVImporter::rows(statement.table, statement.options, categories, calendar);
    if (statement.rows.empty()) throw UserError(statementWithoutRowsMessage(file));
    return statement;
}

}  // namespace vantello
