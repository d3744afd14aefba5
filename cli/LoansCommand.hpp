#pragma once
// "vantello-cli loans": the ledger's loans with their instalment, the capital still owed today
// and where their repayment plan stands, as the wealth screen shows them.

#include "core/base/Localization.hpp"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace vantello::cli {

inline constexpr std::string_view loansUsage = L10n::key(
    "Uso: vantello-cli loans [--today AAAA-MM-GG] [--json] [--data-dir CARTELLA]\n"
    "\n"
    "Elenca i prestiti e i mutui con la rata, il capitale ancora da restituire, le rate pagate e\n"
    "quelle che restano, gli interessi in tutto e la data dell'ultima rata.\n"
    "\n"
    "  --today AAAA-MM-GG     il giorno da prendere come oggi, invece dell'orologio\n"
    "  --json                 scrive i prestiti come JSON\n"
    "  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione\n");

// `arguments` are those after "loans". Exit status: 0 done, 1 unreadable ledger, 2 bad options.
int runLoans(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
