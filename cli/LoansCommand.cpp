#include "cli/LoansCommand.hpp"

#include "cli/DayOption.hpp"
#include "cli/LedgerAccess.hpp"
#include "cli/Subcommand.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"
#include "core/base/Localization.hpp"
#include "core/planning/LoanSchedule.hpp"

namespace vantello::cli {

namespace {

int list(const Arguments& arguments, Instant now, const Calendar& calendar, std::ostream& out) {
    const Ledger ledger = readLedger(arguments);
    const bool json = arguments.has("--json");
    Json loans = Json::array();
    for (const Loan& loan : ledger.data().loans) {
        const LoanSummary summary = loanSummary(loan, now, calendar);
        if (json) {
            Json entry = loan;
            entry["summary"] = summary;
            loans.push_back(std::move(entry));
            continue;
        }
        out << L10n::tr("{nome}: rata {rata}, da restituire {residuo}, rate pagate {pagate} di {rate}, interessi in "
                        "tutto {interessi}, ultima rata il {ultima}",
                        {{"nome", loan.name},
                         {"rata", summary.payment.toFixed(2)},
                         {"residuo", summary.remaining.toFixed(2)},
                         {"pagate", std::to_string(summary.paymentsMade)},
                         {"rate", std::to_string(summary.paymentsMade + summary.paymentsLeft)},
                         {"interessi", summary.totalInterest.toFixed(2)},
                         {"ultima", Iso8601::day(calendar.civilDate(summary.lastPayment))}})
            << '\n';
    }
    if (json) {
        out << JsonCoding::pretty({{"loans", loans}});
    } else {
        out << L10n::tr("Prestiti: {numero}", {{"numero", std::to_string(ledger.data().loans.size())}}) << '\n';
    }
    return 0;
}

}  // namespace

int runLoans(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    ArgumentRules rules;
    rules.flags = {"--json"};
    rules.valueOptions = {"--today"};
    const std::string usage = L10n::tr(loansUsage);
    return runSubcommand(arguments, rules, usage.c_str(), out, err, [&](const Arguments& parsed) -> PreparedWork {
        const Calendar calendar = Calendar::current();
        const Instant now = nowFromArguments(parsed, calendar);
        return [&parsed, now, calendar, &out] { return list(parsed, now, calendar, out); };
    });
}

}  // namespace vantello::cli
