#include "cli/SearchCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/DayOption.hpp"
#include "core/analysis/SavedSearches.hpp"
#include "core/analysis/TransactionSearch.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/ledger/Ledger.hpp"

#include <filesystem>
#include <optional>
#include <utility>

namespace vantello::cli {

namespace {

namespace fs = std::filesystem;

const std::set<std::string> conditionOptions{"--text", "--period", "--from", "--to", "--kind",
                                             "--min",  "--max",    "--account"};

[[noreturn]] void badValue(std::string_view option, std::string_view value, std::string_view expected) {
    throw ArgumentError("Valore non valido per " + std::string(option) + ": «" + std::string(value) + "» (" +
                        std::string(expected) + ").");
}

std::optional<Decimal> amountOption(const Arguments& arguments, std::string_view option) {
    const auto text = arguments.value(option);
    if (!text) return std::nullopt;
    auto amount = AmountParser::parse(*text);
    if (!amount) badValue(option, *text, "serve un importo come 12,50");
    return amount;
}

TransactionFilter::Period periodOption(const std::string& text) {
    try {
        return Json(text).get<TransactionFilter::Period>();
    } catch (const DecodingError&) {
        badValue("--period", text, "all, thisMonth, thisYear, last12Months oppure custom");
    }
}

// The conditions of the command line, checked before the ledger is read.
TransactionFilter filterFromArguments(const Arguments& arguments, const Calendar& calendar) {
    TransactionFilter filter;
    if (const auto text = arguments.value("--text")) filter.text = *text;
    const auto from = arguments.value("--from");
    const auto to = arguments.value("--to");
    if (const auto period = arguments.value("--period")) {
        filter.period = periodOption(*period);
        if ((from || to) && filter.period != TransactionFilter::Period::custom) {
            throw ArgumentError("--from e --to valgono solo con --period custom.");
        }
    } else if (from || to) {
        filter.period = TransactionFilter::Period::custom;
    }
    if (from) filter.customStart = noonOfDayOption("--from", *from, calendar);
    if (to) filter.customEnd = noonOfDayOption("--to", *to, calendar);
    if (const auto kind = arguments.value("--kind")) {
        filter.kind = transactionKindFromFileText(*kind);
        if (!filter.kind) badValue("--kind", *kind, "expense oppure income");
    }
    for (std::string& category : arguments.values("--category")) filter.categoryIDs.insert(std::move(category));
    filter.minAmount = amountOption(arguments, "--min");
    filter.maxAmount = amountOption(arguments, "--max");
    filter.onlyWithAttachments = arguments.has("--with-attachments");
    filter.accountID = arguments.value("--account");
    return filter;
}

bool hasConditions(const Arguments& arguments) {
    for (const std::string& option : conditionOptions) {
        if (arguments.value(option)) return true;
    }
    return !arguments.values("--category").empty() || arguments.has("--with-attachments");
}

// Categories and the account must exist in this ledger; a typing error should not look like
// an empty result, nor be saved.
void checkAgainstLedger(const TransactionFilter& filter, const Ledger& ledger) {
    for (const std::string& categoryID : filter.categoryIDs) {
        if (ledger.category(categoryID)) continue;
        std::string message = "La categoria «" + categoryID + "» non esiste. Categorie:";
        for (const TransactionCategory& category : ledger.allCategories()) {
            message += "\n  " + category.id + " (" + category.name + ")";
        }
        throw UserError(message);
    }
    if (filter.accountID && !ledger.account(*filter.accountID)) {
        std::string message = "Il conto «" + *filter.accountID + "» non esiste. Conti:";
        for (const Account& account : ledger.accounts()) message += "\n  " + account.id + " (" + account.name + ")";
        throw UserError(message);
    }
}

void printFound(const std::vector<Transaction>& found, const Calendar& calendar, bool json, std::ostream& out) {
    if (json) {
        out << JsonCoding::pretty({{"count", found.size()}, {"transactions", found}});
        return;
    }
    for (const Transaction& transaction : found) {
        out << Iso8601::day(calendar.civilDate(transaction.date)) << ' ' << fileText(transaction.kind) << ' '
            << transaction.amount.toFixed(2) << ' ' << transaction.categoryID << ' ' << transaction.accountID
            << " «" << transaction.note << "»\n";
    }
    out << "Movimenti trovati: " << found.size() << '\n';
}

int save(const Arguments& arguments, const std::string& name, TransactionFilter filter, std::ostream& out) {
    const fs::path folder = arguments.dataFolder();
    const DataFolderLock lock(folder);
    const LedgerStore store(folder / LedgerStore::fileName);
    Ledger ledger(store.load());
    checkAgainstLedger(filter, ledger);
    const SavedSearch saved = saveSearch(ledger, name, std::move(filter));
    store.save(ledger.data());
    if (arguments.has("--json")) {
        out << JsonCoding::pretty(Json(saved));
    } else {
        out << "Ricerca salvata: «" << saved.name << "» (" << saved.id.text() << ").\n";
    }
    return 0;
}

int search(const Arguments& arguments, std::optional<TransactionFilter> filter, Instant now,
           const Calendar& calendar, std::ostream& out) {
    // Reading needs no lock: nothing is written.
    const Ledger ledger(LedgerStore(arguments.dataFolder() / LedgerStore::fileName).load());
    if (!filter) {
        const std::string name = *arguments.value("--saved");
        const SavedSearch* saved = savedSearchNamed(ledger, name);
        if (!saved) {
            std::string message = "La ricerca salvata «" + name + "» non esiste.";
            if (!ledger.data().savedSearches.empty()) message += " Ricerche salvate:";
            for (const SavedSearch& each : ledger.data().savedSearches) message += "\n  " + each.name;
            throw UserError(message);
        }
        filter = saved->filter;
    } else {
        checkAgainstLedger(*filter, ledger);
    }
    printFound(searchTransactions(ledger, *filter, now, calendar), calendar, arguments.has("--json"), out);
    return 0;
}

}  // namespace

int runSearch(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    const Calendar calendar = Calendar::current();
    Arguments parsed;
    std::optional<TransactionFilter> filter;
    Instant now;
    try {
        ArgumentRules rules;
        rules.flags = {"--with-attachments", "--json", "--help"};
        rules.valueOptions = conditionOptions;
        rules.valueOptions.insert({"--saved", "--save", "--today"});
        rules.repeatedOptions = {"--category"};
        parsed = Arguments::parse(arguments, rules);
        if (parsed.has("--help")) {
            out << searchUsage;
            return 0;
        }
        if (parsed.value("--saved")) {
            if (parsed.value("--save") || hasConditions(parsed)) {
                throw ArgumentError("--saved usa le condizioni salvate: non va insieme a --save né ad altre condizioni.");
            }
        } else {
            filter = filterFromArguments(parsed, calendar);
        }
        now = nowFromArguments(parsed, calendar);
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << searchUsage;
        return 2;
    }

    try {
        if (const auto name = parsed.value("--save")) return save(parsed, *name, std::move(*filter), out);
        return search(parsed, std::move(filter), now, calendar, out);
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
