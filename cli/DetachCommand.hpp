#pragma once
// "vantello-cli detach": takes an attachment off a movement and removes its copy.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* detachUsage =
    "Uso: vantello-cli detach ID-MOVIMENTO ID-ALLEGATO [--profile ID|NOME] [--data-dir CARTELLA]\n"
    "\n"
    "Toglie l'allegato dal movimento e, salvati i movimenti, elimina la sua copia in Allegati.\n";

// Exit status: 0 done, 1 unknown movement or attachment, 2 bad options.
int runDetach(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
