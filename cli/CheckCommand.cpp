#include "cli/CheckCommand.hpp"

#include "cli/Arguments.hpp"
#include "core/base/Json.hpp"
#include "core/files/LedgerCollections.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerAccounts.hpp"

#include <string>
#include <utility>

namespace vantello::cli {

namespace {

void printJson(const LedgerStore& store, const std::optional<LedgerStore::FormatVersion>& version,
               const Ledger& ledger, std::ostream& out) {
    Json report = Json::object();
    report["file"] = store.file().string();
    if (version) report["version"] = version->value;
    Json counts = Json::object();
    for (const LedgerCollection& collection : ledgerCollections()) {
        counts[std::string(collection.key)] = collection.count(ledger.data());
    }
    report["counts"] = std::move(counts);

    const auto balances = accountBalances(ledger);
    Json accounts = Json::array();
    for (const Account& account : ledger.accounts()) {
        accounts.push_back({{"id", account.id}, {"name", account.name}, {"balance", balances.at(account.id).toFixed(2)}});
    }
    report["accounts"] = std::move(accounts);
    out << JsonCoding::pretty(report);
}

void printText(const LedgerStore& store, const std::optional<LedgerStore::FormatVersion>& version,
               const Ledger& ledger, std::ostream& out) {
    out << "File: " << store.file().string() << '\n';
    if (version) {
        out << "Formato: " << version->value << '\n';
    } else {
        out << "Formato: nessun file, i dati sono vuoti\n";
    }
    for (const LedgerCollection& collection : ledgerCollections()) {
        out << collection.label << ": " << collection.count(ledger.data()) << '\n';
    }

    const auto balances = accountBalances(ledger);
    out << "Saldi:\n";
    for (const Account& account : ledger.accounts()) {
        out << "  " << account.name << " (" << account.id << "): " << balances.at(account.id).toFixed(2) << '\n';
    }
}

}  // namespace

int runCheck(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    try {
        ArgumentRules rules;
        rules.flags = {"--json", "--help"};
        parsed = Arguments::parse(arguments, rules);
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << checkUsage;
        return 2;
    }
    if (parsed.has("--help")) {
        out << checkUsage;
        return 0;
    }

    try {
        const LedgerStore store(parsed.dataFolder() / LedgerStore::fileName);
        auto contents = store.loadContents();
        // The ledger as the application would hold it: main account added, movements sorted.
        const Ledger ledger(std::move(contents.data));
        if (parsed.has("--json")) {
            printJson(store, contents.version, ledger, out);
        } else {
            printText(store, contents.version, ledger, out);
        }
        return 0;
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
