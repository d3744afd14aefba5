#pragma once
// "vantello-cli attach": copies a file into the attachments folder and adds it to a movement.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* attachUsage =
    "Uso: vantello-cli attach ID-MOVIMENTO FILE [--json] [--profile ID|NOME] [--data-dir CARTELLA]\n"
    "\n"
    "Copia FILE (al massimo 25 MB) nella cartella Allegati e lo allega al movimento; il file\n"
    "originale resta dov'è.\n"
    "\n"
    "  --json                 scrive l'allegato come un oggetto JSON\n";

// Exit status: 0 done, 1 unknown movement or a file that cannot be attached, 2 bad options.
int runAttach(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
