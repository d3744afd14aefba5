#pragma once
// "vantello-cli backup": copies the ledger and the attachments of the data folder into a new
// dated backup and keeps the newest ten of the same owner, as the application does every day.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* backupUsage =
    "Uso: vantello-cli backup [--folder CARTELLA] [--json] [--profile ID|NOME] [--data-dir CARTELLA]\n"
    "\n"
    "Copia movimenti.json e la cartella Allegati in una nuova cartella \"Vantello AAAA-MM-GG HH.MM.SS\"\n"
    "(con il nome della gestione per --profile) e tiene solo gli ultimi 10 backup degli stessi dati.\n"
    "\n"
    "  --folder CARTELLA      la cartella dei backup (di solito Backup nella cartella dei dati)\n"
    "  --json                 scrive il backup fatto come un oggetto JSON\n";

// Exit status: 0 done, 1 the backup failed, 2 bad options.
int runBackup(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
