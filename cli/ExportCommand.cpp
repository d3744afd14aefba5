#include "cli/ExportCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/DayOption.hpp"
#include "core/analysis/MonthTransactions.hpp"
#include "core/base/AtomicFile.hpp"
#include "core/base/Calendar.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/statements/CSVExport.hpp"

#include <optional>

namespace vantello::cli {

int runExport(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    Arguments parsed;
    std::optional<CivilDate> month;
    std::string localeName = "it_IT";
    try {
        ArgumentRules rules;
        rules.flags = {"--all", "--help"};
        rules.valueOptions = {"--month", "--locale", "--output"};
        parsed = Arguments::parse(arguments, rules);
        if (parsed.has("--help")) {
            out << exportUsage;
            return 0;
        }
        const auto monthText = parsed.value("--month");
        if (monthText.has_value() == parsed.has("--all")) throw ArgumentError("Scegli --month AAAA-MM oppure --all.");
        if (monthText) {
            month = monthOption(*monthText);
            if (!month) throw ArgumentError("Valore non valido per --month: «" + *monthText + "» (serve AAAA-MM).");
        }
        if (const auto locale = parsed.value("--locale")) {
            if (*locale == "en") {
                localeName = "en_US";
            } else if (*locale != "it") {
                throw ArgumentError("Valore non valido per --locale: «" + *locale + "» (it oppure en).");
            }
        }
    } catch (const ArgumentError& error) {
        err << error.message() << "\n\n" << exportUsage;
        return 2;
    }

    try {
        const Calendar calendar = Calendar::current();
        // Reading needs no lock; only the output file is written.
        const Ledger ledger(LedgerStore(parsed.dataFolder() / LedgerStore::fileName).load());
        std::vector<Transaction> chosen;
        if (month) {
            const auto dayInMonth = calendar.date(*month, 12);
            if (!dayInMonth) throw UserError("Il mese " + *parsed.value("--month") + " non esiste nel calendario.");
            chosen = monthTransactions(ledger, *dayInMonth, calendar);
        } else {
            const auto& all = ledger.transactions();
            chosen.assign(all.begin(), all.end());
        }
        const std::string text = CSVExport::text(chosen, ledger.allCategories(), calendar, localeName);
        if (const auto output = parsed.value("--output")) {
            writeFileAtomically(*output, text);
        } else {
            out << text;
        }
        return 0;
    } catch (const std::exception& error) {
        err << error.what() << '\n';
        return 1;
    }
}

}  // namespace vantello::cli
