#include "cli/ImportCommand.hpp"

#include "cli/Arguments.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Json.hpp"
#include "core/exchange/CSV.hpp"
#include "core/exchange/CSVImportOptions.hpp"
#include "core/exchange/CSVImporter.hpp"
#include "core/exchange/StatementFile.hpp"
#include "core/files/DataFolder.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerStore.hpp"

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <utility>

namespace vantello::cli {

namespace {

namespace fs = std::filesystem;

// The column choices of the command line, checked before any file is read.
struct ColumnChoices {
    std::optional<char> separator;
    std::optional<int> headerRow;
    bool noHeader = false;
    std::optional<int> dateColumn;
    std::optional<CSVImportOptions::DateOrder> dateOrder;
    std::optional<int> amountColumn;
    std::optional<int> incomeColumn;
    std::optional<int> expenseColumn;
    std::optional<int> descriptionColumn;
    std::optional<int> categoryColumn;
};

[[noreturn]] void badValue(std::string_view option, std::string_view value) {
    throw ArgumentError("Valore non valido per " + std::string(option) + ": «" + std::string(value) + "».");
}

std::optional<int> columnOption(const Arguments& arguments, std::string_view option) {
    const auto text = arguments.value(option);
    if (!text) return std::nullopt;
    int column = 0;
    const char* end = text->data() + text->size();
    const auto [stop, error] = std::from_chars(text->data(), end, column);
    if (error != std::errc() || stop != end || column < 0) badValue(option, *text);
    return column;
}

ColumnChoices columnChoices(const Arguments& arguments) {
    ColumnChoices choices;
    if (const auto separator = arguments.value("--separator")) {
        if (*separator == ";" || *separator == ",") {
            choices.separator = separator->front();
        } else if (*separator == "tab" || *separator == "\t") {
            choices.separator = '\t';
        } else {
            badValue("--separator", *separator);
        }
    }
    choices.headerRow = columnOption(arguments, "--header-row");
    choices.noHeader = arguments.has("--no-header");
    if (choices.headerRow && choices.noHeader) throw ArgumentError("--header-row e --no-header non vanno insieme.");
    choices.dateColumn = columnOption(arguments, "--date-column");
    if (const auto order = arguments.value("--date-order")) {
        choices.dateOrder = dateOrderFromRawValue(*order);
        if (!choices.dateOrder) badValue("--date-order", *order);
    }
    choices.amountColumn = columnOption(arguments, "--amount-column");
    choices.incomeColumn = columnOption(arguments, "--income-column");
    choices.expenseColumn = columnOption(arguments, "--expense-column");
    if (choices.amountColumn && (choices.incomeColumn || choices.expenseColumn)) {
        throw ArgumentError("--amount-column non va insieme a --income-column e --expense-column.");
    }
    choices.descriptionColumn = columnOption(arguments, "--description-column");
    choices.categoryColumn = columnOption(arguments, "--category-column");
    return choices;
}

void applyChoices(CSVImportOptions& options, const ColumnChoices& choices) {
    if (choices.noHeader) options.hasHeader = false;
    if (choices.headerRow) {
        options.hasHeader = true;
        options.headerRow = *choices.headerRow;
    }
    if (choices.dateColumn) options.dateColumn = choices.dateColumn;
    if (choices.dateOrder) options.dateOrder = *choices.dateOrder;
    if (choices.amountColumn) {
        options.amountMode = CSVImportOptions::AmountMode::signed_;
        options.amountColumn = choices.amountColumn;
    }
    if (choices.incomeColumn || choices.expenseColumn) {
        options.amountMode = CSVImportOptions::AmountMode::separate;
        if (choices.incomeColumn) options.incomeColumn = choices.incomeColumn;
        if (choices.expenseColumn) options.expenseColumn = choices.expenseColumn;
    }
    if (choices.descriptionColumn) options.descriptionColumn = choices.descriptionColumn;
    if (choices.categoryColumn) options.categoryColumn = choices.categoryColumn;
}

std::string separatorName(char separator) { return separator == '\t' ? "tab" : std::string(1, separator); }

// What the statement's rows became under the options, with the options themselves.
struct Statement {
    char separator = ',';
    CSVImportOptions options;
    std::vector<CSVImportRow> rows;
};

// Reading the file needs the ledger's categories, which recognise the category column.
Statement readStatement(const fs::path& file, const ColumnChoices& choices,
                        const std::vector<TransactionCategory>& categories, const Calendar& calendar) {
    const std::string text = readStatementText(file);
    Statement statement;
    statement.separator = choices.separator.value_or(CSV::detectSeparator(text));
    const CSV::Table table = CSV::parse(text, statement.separator);
    statement.options = CSVImportOptions::guessed(table);
    applyChoices(statement.options, choices);
    statement.rows = CSVImporter::rows(table, statement.options, categories, calendar);
    if (statement.rows.empty()) throw UserError(statementWithoutRowsMessage(file));
    return statement;
}

Json columnJson(const std::optional<int>& column) { return column ? Json(*column) : Json(nullptr); }

Json optionsJson(const CSVImportOptions& options) {
    return {
        {"hasHeader", options.hasHeader},
        {"headerRow", options.headerRow},
        {"dateColumn", columnJson(options.dateColumn)},
        {"dateOrder", std::string(rawValue(options.dateOrder))},
        {"amountMode", std::string(rawValue(options.amountMode))},
        {"amountColumn", columnJson(options.amountColumn)},
        {"incomeColumn", columnJson(options.incomeColumn)},
        {"expenseColumn", columnJson(options.expenseColumn)},
        {"descriptionColumn", columnJson(options.descriptionColumn)},
        {"categoryColumn", columnJson(options.categoryColumn)},
        {"expenseCategoryID", options.expenseCategoryID},
        {"incomeCategoryID", options.incomeCategoryID},
    };
}

void printPreview(const Statement& statement, bool json, const Calendar& calendar, std::ostream& out) {
    if (json) {
        Json rows = Json::array();
        for (const CSVImportRow& row : statement.rows) {
            rows.push_back({{"line", row.line},
                            {"problem", row.problem ? Json(*row.problem) : Json(nullptr)},
                            {"transaction", row.transaction ? Json(*row.transaction) : Json(nullptr)}});
        }
        out << JsonCoding::pretty({{"separator", separatorName(statement.separator)},
                                   {"options", optionsJson(statement.options)},
                                   {"rows", std::move(rows)}});
        return;
    }
    out << "Separatore: " << separatorName(statement.separator) << '\n';
    const Json options = optionsJson(statement.options);
    for (const auto& [key, value] : options.items()) out << key << ": " << value.dump() << '\n';
    for (const CSVImportRow& row : statement.rows) {
        out << "riga " << row.line << ": ";
        if (!row.transaction) {
            out << row.problem.value_or("") << '\n';
            continue;
        }
        const Transaction& transaction = *row.transaction;
        const CivilDate day = calendar.civilDate(transaction.date);
        char date[16];
        std::snprintf(date, sizeof date, "%04d-%02d-%02d", day.year, day.month, day.day);
        out << date << ' ' << fileText(transaction.kind) << ' ' << transaction.amount.toFixed(2) << ' '
            << transaction.categoryID << " «" << transaction.note << "»\n";
    }
}

void printResult(const Ledger::ImportResult& result, const std::vector<const CSVImportRow*>& problems, bool saved,
                 bool json, std::ostream& out) {
    if (json) {
        Json rows = Json::array();
        for (const CSVImportRow* row : problems) rows.push_back({{"line", row->line}, {"problem", *row->problem}});
        out << JsonCoding::pretty({{"added", result.added},
                                   {"duplicates", result.duplicates},
                                   {"transfers", result.transfers},
                                   {"invalid", result.invalid},
                                   {"problems", std::move(rows)},
                                   {"saved", saved}});
        return;
    }
    out << "Import completato.\n"
        << "Aggiunti: " << result.added << '\n'
        << "Già presenti e saltati: " << result.duplicates << '\n'
        << "Diventati giroconti con un altro conto: " << result.transfers << '\n'
        << "Rifiutati: " << result.invalid << '\n'
        << "Righe non importabili: " << problems.size() << '\n';
    for (const CSVImportRow* row : problems) out << "  riga " << row->line << ": " << *row->problem << '\n';
    if (!saved) out << "Nessun cambiamento: movimenti.json non è stato riscritto.\n";
}

std::string unknownAccountMessage(const Ledger& ledger, std::string_view accountID) {
    std::string message = "Il conto «" + std::string(accountID) + "» non esiste. Conti:";
    for (const Account& account : ledger.accounts()) message += "\n  " + account.id + " (" + account.name + ")";
    return message;
}

int preview(const Arguments& arguments, const ColumnChoices& choices, const Calendar& calendar, std::ostream& out) {
    // Reading needs no lock: nothing is written.
    const Ledger ledger(LedgerStore(arguments.dataFolder() / LedgerStore::fileName).load());
    const Statement statement =
        readStatement(arguments.positional().front(), choices, ledger.allCategories(), calendar);
    printPreview(statement, arguments.has("--json"), calendar, out);
    return 0;
}

int merge(const Arguments& arguments, const ColumnChoices& choices, const std::string& accountID,
          const Calendar& calendar, std::ostream& out, std::ostream& err) {
    const fs::path folder = arguments.dataFolder();
    const DataFolderLock lock(folder);
    const LedgerStore store(folder / LedgerStore::fileName);
    Ledger ledger(store.load());
    if (!ledger.account(accountID)) {
        err << unknownAccountMessage(ledger, accountID) << '\n';
        return 1;
    }
    Statement statement = readStatement(arguments.positional().front(), choices, ledger.allCategories(), calendar);

    std::vector<Transaction> transactions;
    std::vector<const CSVImportRow*> problems;
    for (CSVImportRow& row : statement.rows) {
        if (row.transaction) {
            transactions.push_back(std::move(*row.transaction));
        } else {
            problems.push_back(&row);
        }
    }

    const Ledger before = ledger;
    const auto result = ledger.importTransactions(std::move(transactions), accountID,
                                                  arguments.has("--transfers"), calendar);
    const bool changed = !(ledger == before);
    if (changed) store.save(ledger.data());
    printResult(result, problems, changed, arguments.has("--json"), out);
    if (problems.size() == statement.rows.size()) {
        err << "Nessun movimento riconosciuto: controlla le colonne con --preview.\n";
        return 1;
    }
    return 0;
}

}  // namespace

int runImport(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    ColumnChoices choices;
    try {
        ArgumentRules rules;
        rules.flags = {"--preview", "--transfers", "--json", "--no-header", "--help"};
        rules.valueOptions = {"--account",       "--separator",     "--header-row",    "--date-column",
                              "--date-order",    "--amount-column", "--income-column", "--expense-column",
                              "--description-column", "--category-column"};
        rules.maximumPositional = 1;
        parsed = Arguments::parse(arguments, rules);
        if (parsed.has("--help")) {
            out << importUsage;
            return 0;
        }
        if (parsed.positional().empty()) throw ArgumentError("Manca il file da importare.");
        const auto account = parsed.value("--account");
        if (parsed.has("--preview") == account.has_value()) {
            throw ArgumentError("Scegli --preview oppure --account CONTO.");
        }
        if (parsed.has("--preview") && parsed.has("--transfers")) {
            throw ArgumentError("--transfers vale solo con --account.");
        }
        choices = columnChoices(parsed);
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << importUsage;
        return 2;
    }

    try {
        const Calendar calendar = Calendar::current();
        if (parsed.has("--preview")) return preview(parsed, choices, calendar, out);
        return merge(parsed, choices, *parsed.value("--account"), calendar, out, err);
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
