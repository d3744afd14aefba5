#pragma once
// "vantello-cli scenario": the what-if of the scenarios screen. The average month of the last
// three complete months, changed by the adjustments typed, with the savings of the next twelve
// months and the dates of the savings goals, with and without the changes.

#include "core/base/Localization.hpp"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace vantello::cli {

inline constexpr std::string_view scenarioUsage = L10n::key(
    "Uso: vantello-cli scenario [--category ID=PERCENTUALE]... [--income PERCENTUALE]\n"
    "                           [--monthly-expense IMPORTO] [--today AAAA-MM-GG] [--json]\n"
    "                           [--data-dir CARTELLA]\n"
    "\n"
    "Parte dal mese medio degli ultimi tre mesi completi, applica le modifiche e mostra entrate e\n"
    "uscite al mese, i risparmi accumulati nei prossimi dodici mesi e quando raggiungeresti ogni\n"
    "obiettivo, con e senza le modifiche. Le percentuali si scrivono come -10 (10 % in meno) o 15.\n"
    "\n"
    "  --category ID=PERCENTUALE   cambia le uscite di una categoria (anche più volte)\n"
    "  --income PERCENTUALE        cambia le entrate\n"
    "  --monthly-expense IMPORTO   aggiunge una spesa fissa al mese, scritta come 12,50\n"
    "  --today AAAA-MM-GG          il giorno da prendere come oggi, invece dell'orologio\n"
    "  --json                      scrive il risultato come JSON\n"
    "  --data-dir CARTELLA         usa questa cartella invece di quella dell'applicazione\n");

// `arguments` are those after "scenario". Exit status: 0 done, 1 unreadable ledger, 2 bad
// options (an unknown category included).
int runScenario(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
