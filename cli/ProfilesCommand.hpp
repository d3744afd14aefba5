#pragma once
// "vantello-cli profiles": the managed profiles (people and households whose finances the user
// keeps apart): listing, adding, renaming and removing them.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* profilesUsage =
    "Uso: vantello-cli profiles [--json] [--data-dir CARTELLA]\n"
    "     vantello-cli profiles add --first-name NOME --last-name COGNOME     (una persona)\n"
    "     vantello-cli profiles add --household --last-name COGNOME           (una famiglia)\n"
    "     vantello-cli profiles rename ID|NOME [--first-name NOME] [--last-name COGNOME]\n"
    "     vantello-cli profiles remove ID|NOME\n"
    "\n"
    "Ogni gestione ha movimenti, allegati e backup separati dai tuoi; si sceglie con --profile ID|NOME\n"
    "negli altri comandi. NOME è il nome mostrato (\"Mario Rossi\", \"Famiglia Rossi\").\n"
    "remove sposta movimenti e allegati della gestione nel Cestino: finché non lo svuoti puoi\n"
    "recuperarli dal gestore dei file. I backup restano dove sono.\n"
    "\n"
    "  --first-name NOME      il nome della persona\n"
    "  --last-name COGNOME    il cognome (della persona o della famiglia)\n"
    "  --household            una famiglia invece di una persona\n"
    "  --json                 scrive l'elenco o la gestione come JSON\n";

// Exit status: 0 done, 1 refused by the profile rules or a file that cannot be written, 2 bad options.
int runProfiles(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
