#pragma once
// "vantello-cli check": reads a data folder's ledger file and tells what it holds (how many
// records of each kind, every account with its balance), or why it cannot be read.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* checkUsage =
    "Uso: vantello-cli check [--data-dir CARTELLA] [--json]\n"
    "\n"
    "Legge movimenti.json della cartella dei dati e mostra quanti dati contiene e il saldo di ogni conto.\n"
    "\n"
    "  --data-dir CARTELLA  usa questa cartella invece di quella dell'applicazione\n"
    "  --json               scrive il risultato come un oggetto JSON\n";

// `arguments` are those after "check". Exit status: 0 read, 1 unreadable file, 2 bad options.
int runCheck(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
