#include "cli/ImportCommand.hpp"

#include "cli/Arguments.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/statements/CSVImportOptions.hpp"
#include "core/statements/ImportMerge.hpp"
#include "core/statements/StatementFormat.hpp"
#include "core/statements/StatementImport.hpp"

#include <charconv>
#include <filesystem>
#include <optional>
#include <utility>

namespace vantello::cli {

namespace {

namespace fs = std::filesystem;

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

// The column choices of the command line, checked before any file is read.
CSVImportOverrides columnChoices(const Arguments& arguments) {
    CSVImportOverrides choices;
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

std::string separatorName(char separator) { return separator == '\t' ? "tab" : std::string(1, separator); }

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
        {"signColumn", columnJson(options.signColumn)},
        {"statusColumn", columnJson(options.statusColumn)},
        {"expenseCategoryID", options.expenseCategoryID},
        {"incomeCategoryID", options.incomeCategoryID},
    };
}

void printPreview(const StatementImport& statement, bool json, const Calendar& calendar, std::ostream& out) {
    if (json) {
        Json rows = Json::array();
        for (const CSVImportRow& row : statement.rows) {
            rows.push_back({{"line", row.line},
                            {"problem", row.problem ? Json(*row.problem) : Json(nullptr)},
                            {"transaction", row.transaction ? Json(*row.transaction) : Json(nullptr)}});
        }
        out << JsonCoding::pretty({{"format", std::string(rawValue(statement.format))},
                                   {"separator", separatorName(statement.separator)},
                                   {"options", optionsJson(statement.options)},
                                   {"guessedBy", Json(statement.guessedBy)},
                                   {"rows", std::move(rows)}});
        return;
    }
    out << "Formato: " << rawValue(statement.format) << '\n';
    if (statement.format == StatementFormat::csv) {
        out << "Separatore: " << separatorName(statement.separator) << '\n';
        const Json options = optionsJson(statement.options);
        for (const auto& [key, value] : options.items()) out << key << ": " << value.dump() << '\n';
        for (const auto& [option, rule] : statement.guessedBy) out << option << " deciso da: " << rule << '\n';
    }
    for (const CSVImportRow& row : statement.rows) {
        out << "riga " << row.line << ": ";
        if (!row.transaction) {
            out << row.problem.value_or("") << '\n';
            continue;
        }
        const Transaction& transaction = *row.transaction;
        out << Iso8601::day(calendar.civilDate(transaction.date)) << ' ' << fileText(transaction.kind) << ' '
            << transaction.amount.toFixed(2) << ' ' << transaction.categoryID << " «" << transaction.note << "»\n";
    }
}

void printResult(const ImportResult& result, const std::vector<const CSVImportRow*>& problems, bool saved,
                 bool json, std::ostream& out) {
    if (json) {
        Json rows = Json::array();
        for (const CSVImportRow* row : problems) rows.push_back({{"line", row->line}, {"problem", *row->problem}});
        out << JsonCoding::pretty({{"added", result.added},
                                   {"duplicates", result.duplicates},
                                   {"transfers", result.transfers},
                                   {"invalid", result.invalid},
                                   {"repeatedInStatement", result.repeatedInStatement},
                                   {"problems", std::move(rows)},
                                   {"saved", saved}});
        return;
    }
    out << "Import completato.\n"
        << "Aggiunti: " << result.added << '\n'
        << "Già presenti e saltati: " << result.duplicates << '\n'
        << "Diventati giroconti con un altro conto: " << result.transfers << '\n'
        << "Rifiutati: " << result.invalid << '\n'
        << "Uguali a un altro movimento dello stesso file: " << result.repeatedInStatement << '\n'
        << "Righe non importabili: " << problems.size() << '\n';
    for (const CSVImportRow* row : problems) out << "  riga " << row->line << ": " << *row->problem << '\n';
    if (!saved) out << "Nessun cambiamento: movimenti.json non è stato riscritto.\n";
}

std::string unknownAccountMessage(const Ledger& ledger, std::string_view accountID) {
    std::string message = "Il conto «" + std::string(accountID) + "» non esiste. Conti:";
    for (const Account& account : ledger.accounts()) message += "\n  " + account.id + " (" + account.name + ")";
    return message;
}

int preview(const Arguments& arguments, const CSVImportOverrides& choices, const Calendar& calendar,
            std::ostream& out) {
    // Reading needs no lock: nothing is written.
    const Ledger ledger(LedgerStore(arguments.dataFolder() / LedgerStore::fileName).load());
    const StatementImport statement =
        openStatement(arguments.positional().front(), choices, ledger.allCategories(), calendar);
    printPreview(statement, arguments.has("--json"), calendar, out);
    return 0;
}

int merge(const Arguments& arguments, const CSVImportOverrides& choices, const std::string& accountID,
          const Calendar& calendar, std::ostream& out, std::ostream& err) {
    const fs::path folder = arguments.dataFolder();
    const DataFolderLock lock(folder);
    const LedgerStore store(folder / LedgerStore::fileName);
    Ledger ledger(store.load());
    if (!ledger.account(accountID)) {
        err << unknownAccountMessage(ledger, accountID) << '\n';
        return 1;
    }
    StatementImport statement =
        openStatement(arguments.positional().front(), choices, ledger.allCategories(), calendar);
    const std::vector<const CSVImportRow*> problems = statement.problems();
    const std::size_t rowCount = statement.rows.size();

    const ImportResult result = importTransactions(ledger, std::move(statement).transactions(), accountID,
                                                   arguments.has("--transfers"), calendar,
                                                   arguments.has("--count-repeated") ? RepeatedMovements::counted
                                                                                     : RepeatedMovements::oneDuplicate);
    if (result.changed()) store.save(ledger.data());
    printResult(result, problems, result.changed(), arguments.has("--json"), out);
    if (problems.size() == rowCount) {
        err << "Nessun movimento riconosciuto: controlla le colonne con --preview.\n";
        return 1;
    }
    return 0;
}

}  // namespace

int runImport(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    CSVImportOverrides choices;
    try {
        ArgumentRules rules;
        rules.flags = {"--preview", "--transfers", "--count-repeated", "--json", "--no-header", "--help"};
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
        if (parsed.has("--preview") && parsed.has("--count-repeated")) {
            throw ArgumentError("--count-repeated vale solo con --account.");
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
