#pragma once
// "vantello-cli restore": puts a backup's ledger and attachments back in the data folder, after
// a backup of the current state so that the restore can be undone.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* restoreUsage =
    "Uso: vantello-cli restore NOME [--folder CARTELLA] [--json] [--profile ID|NOME] [--data-dir CARTELLA]\n"
    "\n"
    "Ripristina il backup NOME (il nome della sua cartella, come lo mostra \"backups\"): movimenti e\n"
    "allegati tornano come erano. Prima Vantello fa un backup della situazione attuale, così puoi\n"
    "tornare indietro. Il backup deve essere degli stessi dati (i tuoi, o della gestione di --profile).\n"
    "\n"
    "  --folder CARTELLA      la cartella dei backup (di solito Backup nella cartella dei dati)\n"
    "  --json                 scrive il risultato come un oggetto JSON\n";

// Exit status: 0 done, 1 unknown backup or failed restore (the data are then as they were),
// 2 bad options.
int runRestore(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
