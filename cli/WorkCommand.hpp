#pragma once
// "vantello-cli work": the periods without work, the one in progress, the last salary, whether
// this month's salary is recorded, and when the salary reminder would next go off.

#include "core/base/Localization.hpp"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace vantello::cli {

inline constexpr std::string_view workUsage = L10n::key(
    "Uso: vantello-cli work [--reminder-day G [--reminder-hour H]] [--today AAAA-MM-GG] [--json]\n"
    "                       [--data-dir CARTELLA]\n"
    "\n"
    "Mostra i periodi di disoccupazione, quello in corso, l'ultimo stipendio e se quello del mese\n"
    "è già registrato. Con --reminder-day dice anche quando scatterebbe il promemoria dello\n"
    "stipendio con quel giorno e quell'ora.\n"
    "\n"
    "  --reminder-day G       il giorno del mese del promemoria, da 1 a 31\n"
    "  --reminder-hour H      l'ora del promemoria, da 0 a 23 (9 se manca)\n"
    "  --today AAAA-MM-GG     il giorno da prendere come oggi, invece dell'orologio\n"
    "  --json                 scrive tutto come JSON\n"
    "  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione\n");

// `arguments` are those after "work". Exit status: 0 done, 1 unreadable ledger, 2 bad options.
int runWork(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
