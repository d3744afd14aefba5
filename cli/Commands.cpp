#include "cli/Commands.hpp"

#include "cli/AlertsCommand.hpp"
#include "cli/Arguments.hpp"
#include "cli/AttachCommand.hpp"
#include "cli/BackupCommand.hpp"
#include "cli/BackupsCommand.hpp"
#include "cli/CheckCommand.hpp"
#include "cli/ExportCommand.hpp"
#include "cli/GoalsCommand.hpp"
#include "cli/DetachCommand.hpp"
#include "cli/ImportCommand.hpp"
#include "cli/LoanCommand.hpp"
#include "cli/LoansCommand.hpp"
#include "cli/NetWorthCommand.hpp"
#include "cli/ProfilesCommand.hpp"
#include "cli/RatesCommand.hpp"
#include "cli/ReportCommand.hpp"
#include "cli/RestoreCommand.hpp"
#include "cli/ScenarioCommand.hpp"
#include "cli/SearchCommand.hpp"
#include "cli/WorkCommand.hpp"
#include "cli/SubscriptionsCommand.hpp"

#include <cstddef>
#include <string>

namespace vantello::cli {

namespace {

constexpr const char* usage =
    "Uso: vantello-cli [--help] [--version] [--data-dir CARTELLA] [--profile ID|NOME] <comando> [opzioni]\n"
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
    "  loan         calcola la rata e il piano di ammortamento di un prestito\n"
    "  loans        i prestiti: rata, capitale da restituire, rate pagate e rimaste\n"
    "  networth     il patrimonio netto di oggi e a fine mese nei mesi precedenti\n"
    "  work         periodi senza lavoro, ultimo stipendio, prossimo promemoria dello stipendio\n"
    "  subscriptions  abbonamenti trovati nei movimenti: elenca, ignora, rende ricorrenti\n"
    "  scenario     e se...? il mese medio con le modifiche, i risparmi e gli obiettivi\n"
    "  report       riepilogo di un mese: totali, categorie, budget, stima a fine mese, avvisi\n"
    "  attach       allega un file a un movimento\n"
    "  detach       toglie un allegato da un movimento ed elimina il file\n"
    "  backup       fa un backup di movimenti e allegati\n"
    "  backups      elenca i backup, dal più recente\n"
    "  restore      ripristina un backup, dopo averne fatto uno della situazione attuale\n"
    "  profiles     elenca, aggiunge, rinomina ed elimina le gestioni (persone e famiglie)\n"
    "  goals        gli obiettivi di risparmio: quanto manca, quanto al mese, quando li raggiungi\n"
    "\n"
    "Opzioni:\n"
    "  --help               mostra questo aiuto\n"
    "  --version            mostra la versione\n"
    "  --data-dir CARTELLA  usa questa cartella dei dati invece di quella dell'applicazione\n"
    "  --profile ID|NOME    lavora sui dati di una gestione invece che sui tuoi\n"
    "Le ultime due valgono con ogni comando, prima o dopo il suo nome.\n";

// "--data-dir" and "--profile" given before the command's name, with their values: they go to
// the command in front of its own arguments. Returns the index of the command's name.
std::size_t takeLeadingGlobalOptions(const std::vector<std::string>& arguments, std::vector<std::string>& taken) {
    std::size_t index = 0;
    while (index < arguments.size()) {
        const std::string& argument = arguments[index];
        const bool alone = argument == dataDirOption || argument == profileOption;
        const bool joined = argument.starts_with(std::string(dataDirOption) + "=") ||
                            argument.starts_with(std::string(profileOption) + "=");
        if (joined) {
            taken.push_back(argument);
            index += 1;
        } else if (alone && index + 1 < arguments.size()) {
            taken.insert(taken.end(), {argument, arguments[index + 1]});
            index += 2;
        } else {
            break;
        }
    }
    return index;
}

}  // namespace

int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    std::vector<std::string> rest;
    const std::size_t commandIndex = takeLeadingGlobalOptions(arguments, rest);
    if (commandIndex == arguments.size() || arguments[commandIndex] == "--help" || arguments[commandIndex] == "-h") {
        const bool asked = commandIndex < arguments.size();
        (asked ? out : err) << usage;
        return asked ? 0 : 2;
    }
    const std::string& command = arguments[commandIndex];
    if (command == "--version") {
        out << "vantello-cli " << VANTELLO_VERSION << '\n';
        return 0;
    }
    rest.insert(rest.end(), arguments.begin() + static_cast<std::ptrdiff_t>(commandIndex) + 1, arguments.end());
    if (command == "check") return runCheck(rest, out, err);
    if (command == "import") return runImport(rest, out, err);
    if (command == "export") return runExport(rest, out, err);
    if (command == "rates") return runRates(rest, out, err);
    if (command == "search") return runSearch(rest, out, err);
    if (command == "alerts") return runAlerts(rest, out, err);
    if (command == "loan") return runLoan(rest, out, err);
    if (command == "loans") return runLoans(rest, out, err);
    if (command == "networth") return runNetWorth(rest, out, err);
    if (command == "work") return runWork(rest, out, err);
    if (command == "subscriptions") return runSubscriptions(rest, out, err);
    if (command == "scenario") return runScenario(rest, out, err);
    if (command == "report") return runReport(rest, out, err);
    if (command == "attach") return runAttach(rest, out, err);
    if (command == "detach") return runDetach(rest, out, err);
    if (command == "backup") return runBackup(rest, out, err);
    if (command == "backups") return runBackups(rest, out, err);
    if (command == "restore") return runRestore(rest, out, err);
    if (command == "profiles") return runProfiles(rest, out, err);
    if (command == "goals") return runGoals(rest, out, err);
    err << "Comando sconosciuto: " << command << "\n\n" << usage;
    return 2;
}

}  // namespace vantello::cli
