#pragma once
// "vantello-cli search": finds movements across the whole ledger by text and conditions, runs a
// saved search, or saves the conditions under a name, the way the application's search screen
// and its saved searches do.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* searchUsage =
    "Uso: vantello-cli search [condizioni] [--today AAAA-MM-GG] [--json] [--data-dir CARTELLA]\n"
    "     vantello-cli search --saved NOME [--today AAAA-MM-GG] [--json] [--data-dir CARTELLA]\n"
    "     vantello-cli search --save NOME [condizioni] [--json] [--data-dir CARTELLA]\n"
    "\n"
    "Cerca in tutti i movimenti e li mostra dal più recente. Con --saved usa le condizioni di una\n"
    "ricerca salvata; con --save salva le condizioni sotto un nome in movimenti.json, senza cercare.\n"
    "\n"
    "Condizioni (valgono tutte insieme):\n"
    "  --text TESTO           nella nota (senza badare a maiuscole e accenti), nel nome della\n"
    "                         categoria o come importo esatto (12,50)\n"
    "  --period P             all (predefinito), thisMonth, thisYear, last12Months oppure custom\n"
    "  --from AAAA-MM-GG      primo giorno del periodo custom (sottinteso se manca --period)\n"
    "  --to AAAA-MM-GG        ultimo giorno del periodo custom, compreso\n"
    "  --kind K               expense (uscite) oppure income (entrate)\n"
    "  --category ID          id di una categoria (per esempio spesa); si può ripetere\n"
    "  --min IMPORTO          importo minimo, scritto all'italiana (1.250,00)\n"
    "  --max IMPORTO          importo massimo\n"
    "  --with-attachments     solo i movimenti con almeno un allegato\n"
    "  --account ID           id del conto (per esempio principale)\n"
    "\n"
    "  --today AAAA-MM-GG     il giorno da prendere come oggi per i periodi, invece dell'orologio\n"
    "  --json                 scrive il risultato come JSON\n"
    "  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione\n";

// `arguments` are those after "search". Exit status: 0 done, 1 unreadable ledger, unknown
// category, account or saved search, or a bad name, 2 bad options.
int runSearch(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
