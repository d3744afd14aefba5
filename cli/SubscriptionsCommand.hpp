#pragma once
// "vantello-cli subscriptions": the charges that come back every week, month or year, and what
// the subscriptions screen does with one: hide it for good or make it a recurring movement.

#include "core/base/Localization.hpp"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace vantello::cli {

inline constexpr std::string_view subscriptionsUsage = L10n::key(
    "Uso: vantello-cli subscriptions [list] [--json] [--data-dir CARTELLA]\n"
    "     vantello-cli subscriptions ignore CHIAVE [--data-dir CARTELLA]\n"
    "     vantello-cli subscriptions recurring CHIAVE [--data-dir CARTELLA]\n"
    "\n"
    "Elenca le spese con la stessa descrizione e un importo simile che tornano ogni settimana,\n"
    "mese o anno (servono almeno tre addebiti, due per quelli annuali), con il costo al mese e\n"
    "all'anno e gli aumenti di prezzo. Con ignore l'abbonamento con quella chiave non viene più\n"
    "proposto; con recurring diventa un movimento ricorrente dal prossimo addebito previsto.\n"
    "\n"
    "  --json                 scrive gli abbonamenti come JSON\n"
    "  --data-dir CARTELLA    usa questa cartella invece di quella dell'applicazione\n");

// `arguments` are those after "subscriptions". Exit status: 0 done, 1 unreadable or unwritable
// ledger, 2 bad options or a key that is not a subscription to act on.
int runSubscriptions(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace vantello::cli
