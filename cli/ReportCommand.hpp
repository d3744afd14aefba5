#pragma once
// "vantello-cli report": what the month screen shows for one month (totals, the month before,
// expenses by category and the donut, the twelve-month trend, budgets, the forecast with the
// lowest balance ahead, the alerts), or the income and expenses per category of every month.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* reportUsage =
    "Uso: vantello-cli report --month AAAA-MM [--account ID] [--today AAAA-MM-GG] [--json] [--data-dir CARTELLA]\n"
    "     vantello-cli report --all --by-month [--account ID] [--json] [--data-dir CARTELLA]\n"
    "\n"
    "Mostra il riepilogo di un mese come la schermata del mese: entrate e uscite, il mese\n"
    "precedente, le spese per categoria, l'andamento degli ultimi dodici mesi, i budget, la stima\n"
    "a fine mese con il saldo più basso previsto e gli avvisi. I giroconti non contano mai.\n"
    "\n"
    "  --month AAAA-MM      il mese da mostrare (nel fuso orario del sistema); la stima c'è solo\n"
    "                       per il mese in corso\n"
    "  --all --by-month     entrate e uscite per categoria di ogni mese, dal più vecchio\n"
    "  --account ID         la stima e il saldo più basso di quel solo conto (con --by-month: i\n"
    "                       movimenti di quel conto); senza, tutti i conti insieme\n"
    "  --today AAAA-MM-GG   il giorno da considerare oggi (alle 12:00); senza, l'orologio\n"
    "  --json               stampa in JSON: importi come testo decimale, mesi come AAAA-MM\n"
    "  --data-dir CARTELLA  usa questa cartella invece di quella dell'applicazione\n";

// `arguments` are those after "report". Exit status: 0 printed, 1 unreadable ledger or unknown
// account, 2 bad options.
int runReport(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
