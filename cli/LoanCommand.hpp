#pragma once
// "vantello-cli loan schedule": the instalment and the repayment plan of a loan described on
// the command line, without reading or writing any data.

#include "core/base/Localization.hpp"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace vantello::cli {

inline constexpr std::string_view loanUsage = L10n::key(
    "Uso: vantello-cli loan schedule --principal IMPORTO --rate TASSO --months N [--start AAAA-MM-GG] [--json]\n"
    "\n"
    "Calcola la rata mensile e il piano di ammortamento (alla francese) di un prestito.\n"
    "\n"
    "  --principal IMPORTO    il capitale preso in prestito, per esempio 100.000 o 100000,50\n"
    "  --rate TASSO           il tasso annuo in percento, per esempio 3,5 (0 senza interessi)\n"
    "  --months N             il numero di rate mensili\n"
    "  --start AAAA-MM-GG     il giorno della prima rata (oggi se manca)\n"
    "  --json                 scrive la rata e il piano come JSON\n");

// `arguments` are those after "loan". Exit status: 0 done, 2 bad options.
int runLoan(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
