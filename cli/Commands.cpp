#include "cli/Commands.hpp"

#include "cli/AlertsCommand.hpp"
#include "cli/CheckCommand.hpp"
#include "cli/ExportCommand.hpp"
#include "cli/ImportCommand.hpp"
#include "cli/RatesCommand.hpp"
#include "cli/ReportCommand.hpp"
#include "cli/SearchCommand.hpp"

namespace vantello::cli {

namespace {

constexpr const char* usage =
    "Uso: vantello-cli [--help] [--version] <comando> [opzioni]\n"
    "\n"
    "Lavora sulla stessa cartella dei dati dell'applicazione Vantello.\n"
    "\n"
    "Comandi:\n"
    "  check        mostra che cosa contiene il file dei movimenti e i saldi dei conti\n"
    "  import       legge un estratto conto in CSV e ne aggiunge i movimenti a un conto\n"
    "  export       scrive in CSV i movimenti di un mese o tutti\n"
    "  rates        mostra il cambio della BCE di una valuta in un giorno e converte un importo\n"
    "  search       cerca nei movimenti per testo e condizioni; usa o salva le ricerche salvate\n"
    "  alerts       mostra gli avvisi di oggi o ne ignora uno per sempre\n"
    "  report       riepilogo di un mese: totali, categorie, budget, stima a fine mese, avvisi\n"
    "\n"
    "Opzioni:\n"
    "  --help       mostra questo aiuto\n"
    "  --version    mostra la versione\n";

}  // namespace

int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    if (arguments.empty() || arguments.front() == "--help" || arguments.front() == "-h") {
        (arguments.empty() ? err : out) << usage;
        return arguments.empty() ? 2 : 0;
    }
    if (arguments.front() == "--version") {
        out << "vantello-cli " << VANTELLO_VERSION << '\n';
        return 0;
    }
    const std::vector<std::string> rest(arguments.begin() + 1, arguments.end());
    if (arguments.front() == "check") return runCheck(rest, out, err);
    if (arguments.front() == "import") return runImport(rest, out, err);
    if (arguments.front() == "export") return runExport(rest, out, err);
    if (arguments.front() == "rates") return runRates(rest, out, err);
    if (arguments.front() == "search") return runSearch(rest, out, err);
    if (arguments.front() == "alerts") return runAlerts(rest, out, err);
    if (arguments.front() == "report") return runReport(rest, out, err);
    err << "Comando sconosciuto: " << arguments.front() << "\n\n" << usage;
    return 2;
}

}  // namespace vantello::cli
