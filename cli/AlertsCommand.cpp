#include "cli/AlertsCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/DayOption.hpp"
#include "cli/LedgerAccess.hpp"
#include "cli/Subcommand.hpp"
#include "core/analysis/AlertDismissal.hpp"
#include "core/analysis/SmartAlerts.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Json.hpp"
#include "core/ledger/Ledger.hpp"

namespace vantello::cli {

namespace {

int list(const Arguments& arguments, Instant now, const Calendar& calendar, std::ostream& out) {
    const Ledger ledger = readLedger(arguments);
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
    const bool written = changeLedger(arguments, [&](Ledger& ledger) { dismissAlert(ledger, alertID); });
    if (!written) {
        out << "L'avviso " << alertID << " era già ignorato: movimenti.json non è stato riscritto.\n";
        return 0;
    }
    out << "Avviso ignorato: " << alertID << '\n';
    return 0;
}

}  // namespace

int runAlerts(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    ArgumentRules rules;
    rules.flags = {"--json"};
    rules.valueOptions = {"--today"};
    rules.maximumPositional = 2;
    return runSubcommand(arguments, rules, alertsUsage, out, err, [&](const Arguments& parsed) -> PreparedWork {
        const auto& positional = parsed.positional();
        const std::string action = positional.empty() ? "list" : positional.front();
        if (action == "list") {
            if (positional.size() > 1) throw ArgumentError("Argomento inatteso: " + positional[1]);
            const Calendar calendar = Calendar::current();
            const Instant now = nowFromArguments(parsed, calendar);
            return [&parsed, now, calendar, &out] { return list(parsed, now, calendar, out); };
        }
        if (action == "dismiss") {
            if (positional.size() < 2 || positional[1].empty()) throw ArgumentError("Manca l'id dell'avviso.");
            if (parsed.value("--today") || parsed.has("--json")) {
                throw ArgumentError("--today e --json valgono solo per l'elenco degli avvisi.");
            }
            return [&parsed, &out] { return dismiss(parsed, parsed.positional()[1], out); };
        }
        throw ArgumentError("Azione sconosciuta: " + action + " (list oppure dismiss).");
    });
}

}  // namespace vantello::cli
