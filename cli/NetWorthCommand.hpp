#pragma once
// "vantello-cli networth": accounts plus assets minus debts today, and month by month before.

#include "core/base/Localization.hpp"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace vantello::cli {

inline constexpr std::string_view netWorthUsage = L10n::key(
    "Uso: vantello-cli networth [--months N] [--today AAAA-MM-GG] [--json] [--data-dir CARTELLA]\n"
    "\n"
    "Mostra il patrimonio netto di oggi (saldi dei conti più il valore dei beni meno il capitale\n"
    "ancora dovuto sui prestiti) e la sua storia: la fine di ognuno dei mesi precedenti, poi oggi.\n"
    "\n"
    "  --months N             quanti mesi, compreso quello in corso (12 se manca)\n"
    "  --today AAAA-MM-GG     il giorno da prendere come oggi, invece dell'orologio\n"
    "  --json                 scrive il patrimonio e la storia come JSON\n"
    "  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione\n");

// `arguments` are those after "networth". Exit status: 0 done, 1 unreadable ledger, 2 bad options.
int runNetWorth(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
