#pragma once
// "vantello-cli backups": the backups in the backup folder, newest first, with whose data each
// one holds.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* backupsUsage =
    "Uso: vantello-cli backups [--folder CARTELLA] [--json] [--data-dir CARTELLA]\n"
    "\n"
    "Elenca i backup, dal più recente, con i dati che contengono (i tuoi o quelli di una gestione).\n"
    "\n"
    "  --folder CARTELLA      la cartella dei backup (di solito Backup nella cartella dei dati)\n"
    "  --json                 scrive l'elenco come un array JSON\n";

// Exit status: 0 done, 1 the folder cannot be read, 2 bad options.
int runBackups(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
