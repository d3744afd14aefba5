#pragma once
// "vantello-cli alerts": the smart alerts of the moment, and dismissing one for good, the way
// the application's alerts screen does.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* alertsUsage =
    "Uso: vantello-cli alerts [list] [--today AAAA-MM-GG] [--json] [--data-dir CARTELLA]\n"
    "     vantello-cli alerts dismiss ID [--data-dir CARTELLA]\n"
    "\n"
    "Mostra gli avvisi di oggi (spesa insolita, possibile addebito doppio, saldo basso, previsione\n"
    "di fine mese negativa), tranne quelli ignorati. Con dismiss ignora per sempre l'avviso con\n"
    "quell'id e lo scrive in movimenti.json.\n"
    "\n"
    "  --today AAAA-MM-GG     il giorno da prendere come oggi, invece dell'orologio\n"
    "  --json                 scrive gli avvisi come JSON\n"
    "  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione\n";

// `arguments` are those after "alerts". Exit status: 0 done, 1 unreadable or unwritable
// ledger, 2 bad options.
int runAlerts(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
