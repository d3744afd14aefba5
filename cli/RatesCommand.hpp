#pragma once
// "vantello-cli rates": looks up the European Central Bank's reference rate of a currency on a
// day, in a saved feed or one downloaded now, and converts an amount to euro with it.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* ratesUsage =
    "Uso: vantello-cli rates (--feed FILE | --fetch [--url URL]) --currency VALUTA --date AAAA-MM-GG\n"
    "                        [--amount IMPORTO] [--json]\n"
    "\n"
    "Mostra il cambio di riferimento della BCE (quante unità della valuta vale un euro) valido in un\n"
    "giorno: quello del giorno o dell'ultimo giorno pubblicato nei sette precedenti.\n"
    "\n"
    "  --feed FILE          legge i cambi da un file XML della BCE già scaricato\n"
    "  --fetch              scarica i cambi degli ultimi 90 giorni dalla BCE\n"
    "  --url URL            scarica da questo indirizzo invece che dalla BCE\n"
    "  --currency VALUTA    codice ISO della valuta (USD, GBP, …)\n"
    "  --date AAAA-MM-GG    il giorno del movimento\n"
    "  --amount IMPORTO     converte in euro questo importo nella valuta (\"1.250,00\")\n"
    "  --json               scrive il risultato come un oggetto JSON\n";

// `arguments` are those after "rates". Exit status: 0 rate found, 1 no rate or the feed could
// not be had, 2 bad options.
int runRates(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
