#pragma once
// "vantello-cli import": shows how a bank statement (CSV) would be read, or merges its
// movements into the ledger on a chosen account, the way the application's import sheet does.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* importUsage =
    "Uso: vantello-cli import FILE --preview [--json] [colonne] [--data-dir CARTELLA]\n"
    "     vantello-cli import FILE --account CONTO [--transfers] [--json] [colonne] [--data-dir CARTELLA]\n"
    "\n"
    "Legge un estratto conto in CSV, OFX/QFX, QIF o CAMT.053 (riconosciuto dal contenuto). Con --preview mostra le colonne riconosciute e le righe lette,\n"
    "senza cambiare nulla; con --account aggiunge i movimenti al conto scelto, salta quelli già\n"
    "presenti e scrive movimenti.json solo se qualcosa è cambiato.\n"
    "\n"
    "  --preview              mostra le opzioni e le righe senza importare\n"
    "  --account CONTO        id del conto su cui importare (per esempio principale)\n"
    "  --transfers            riconosce i giroconti con gli altri conti\n"
    "  --count-repeated       N movimenti uguali nel file, M già presenti: ne aggiunge N − M\n"
    "  --json                 scrive il risultato come un oggetto JSON\n"
    "  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione\n"
    "\n"
    "Colonne (contate da 0; senza queste opzioni sono indovinate dall'intestazione):\n"
    "  --separator S          ; , oppure tab\n"
    "  --header-row N         riga dei nomi delle colonne\n"
    "  --no-header            il file non ha una riga di intestazione\n"
    "  --date-column N        --date-order dayMonthYear|yearMonthDay|monthDayYear\n"
    "  --amount-column N      una colonna con il meno per le uscite\n"
    "  --income-column N      con --expense-column N: due colonne, entrate e uscite\n"
    "  --description-column N --category-column N\n";

// `arguments` are those after "import". Exit status: 0 done, 1 unreadable file, unknown account
// or nothing importable, 2 bad options.
int runImport(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
