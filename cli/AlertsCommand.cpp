#include "cli/AlertsCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/DayOption.hpp"
#include "core/analysis/AlertDismissal.hpp"
#include "core/analysis/SmartAlerts.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Json.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/Ledger.hpp"

#include <filesystem>

namespace vantello::cli {

namespace {

namespace fs = std::filesystem;

int list(const Arguments& arguments, Instant now, const Calendar& calendar, std::ostream& out) {
    // Reading needs no lock: nothing is written.
    const Ledger ledger(LedgerStore(arguments.dataFolder() / LedgerStore::fileName).load());
    const std::vector<SmartAlert> alerts =
        smartAlerts(ledger, AlertSettings{}, ledger.data().dismissedAlerts, now, calendar);
    if (arguments.has("--json")) {
        out << JsonCoding::pretty(Json(alerts));
        return 0;
    }
    for (const SmartAlert& alert : alerts) {
        out << alert.title << '\n' << "  " << alert.message << '\n' << "  id: " << alert.id << '\n';
    }
    out << "Avvisi: " << alerts.size() << '\n';
    return 0;
}

int dismiss(const Arguments& arguments, const std::string& alertID, std::ostream& out) {
    const fs::path folder = arguments.dataFolder();
    const DataFolderLock lock(folder);
    const LedgerStore store(folder / LedgerStore::fileName);
    Ledger ledger(store.load());
    if (ledger.data().dismissedAlerts.contains(alertID)) {
        out << "L'avviso " << alertID << " era già ignorato: movimenti.json non è stato riscritto.\n";
        return 0;
    }
    dismissAlert(ledger, alertID);
    store.save(ledger.data());
    out << "Avviso ignorato: " << alertID << '\n';
    return 0;
}

}  // namespace

int runAlerts(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    const Calendar calendar = Calendar::current();
    Arguments parsed;
    Instant now;
    try {
        ArgumentRules rules;
        rules.flags = {"--json", "--help"};
        rules.valueOptions = {"--today"};
        rules.maximumPositional = 2;
        parsed = Arguments::parse(arguments, rules);
        if (parsed.has("--help")) {
            out << alertsUsage;
            return 0;
        }
        const auto& positional = parsed.positional();
        const std::string action = positional.empty() ? "list" : positional.front();
        if (action == "list") {
            if (positional.size() > 1) throw ArgumentError("Argomento inatteso: " + positional[1]);
        } else if (action == "dismiss") {
            if (positional.size() < 2 || positional[1].empty()) throw ArgumentError("Manca l'id dell'avviso.");
            if (parsed.value("--today") || parsed.has("--json")) {
                throw ArgumentError("--today e --json valgono solo per l'elenco degli avvisi.");
            }
        } else {
            throw ArgumentError("Azione sconosciuta: " + action + " (list oppure dismiss).");
        }
        now = nowFromArguments(parsed, calendar);
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << alertsUsage;
        return 2;
    }

    try {
        if (parsed.positional().size() == 2) return dismiss(parsed, parsed.positional()[1], out);
        return list(parsed, now, calendar, out);
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
