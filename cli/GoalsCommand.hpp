#pragma once
// "vantello-cli goals": the savings goals with what their cards show on a day.

#include <ostream>
#include <string>
#include <vector>

namespace vantello::cli {

inline constexpr const char* goalsUsage =
    "Uso: vantello-cli goals [--today AAAA-MM-GG] [--json] [--data-dir CARTELLA]\n"
    "\n"
    "Elenca gli obiettivi di risparmio: quanto è messo da parte e quanto manca, la cifra da\n"
    "mettere da parte ogni mese per la scadenza, il ritmo finora, lo stato e quando l'obiettivo\n"
    "sarà raggiunto a questo ritmo.\n"
    "\n"
    "  --today AAAA-MM-GG     il giorno da prendere come oggi, invece dell'orologio\n"
    "  --json                 scrive gli obiettivi come JSON\n"
    "  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione\n";

// `arguments` are those after "goals". Exit status: 0 done, 1 unreadable ledger, 2 bad options.
int runGoals(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
