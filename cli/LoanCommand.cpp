#include "cli/LoanCommand.hpp"

#include "cli/DayOption.hpp"
#include "cli/NumberOptions.hpp"
#include "cli/Subcommand.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"
#include "core/base/Localization.hpp"
#include "core/ledger/LedgerLoans.hpp"
#include "core/ledger/WealthError.hpp"
#include "core/planning/LoanSchedule.hpp"

namespace vantello::cli {

namespace {

constexpr int maximumMonths = 1200;

// The loan described by the options, with the core's check of its terms.
Loan loanFromArguments(const Arguments& arguments, const Calendar& calendar) {
    for (const char* option : {"--principal", "--rate", "--months"}) {
        if (!arguments.value(option)) throw ArgumentError(L10n::tr("Manca {opzione}.", {{"opzione", option}}));
    }
    Loan loan;
    loan.principal = *amountOption(arguments, "--principal", L10n::tr("serve un importo come 100.000 o 100000,50"));
    loan.annualRate = *amountOption(arguments, "--rate", L10n::tr("serve un tasso in percento come 3,5"));
    loan.months = *integerOption(arguments, "--months", 0, maximumMonths);
    const std::optional<std::string> start = arguments.value("--start");
    loan.firstPayment = start ? noonOfDayOption("--start", *start, calendar) : nowFromArguments(arguments, calendar);
    try {
        checkLoanTerms(loan);
    } catch (const WealthError& error) {
        throw ArgumentError(error.message());
    }
    return loan;
}

int printSchedule(const Loan& loan, const Calendar& calendar, bool json, std::ostream& out) {
    const std::vector<LoanPayment> schedule = loanSchedule(loan, calendar);
    const Decimal payment = loanPayment(loan);
    const Decimal interest = totalInterest(schedule);
    if (json) {
        out << JsonCoding::pretty({{"principal", loan.principal},
                                   {"annualRate", loan.annualRate},
                                   {"months", loan.months},
                                   {"firstPayment", loan.firstPayment},
                                   {"payment", payment},
                                   {"totalInterest", interest},
                                   {"schedule", schedule}});
        return 0;
    }
    out << L10n::tr("Rata mensile: {rata}, interessi in tutto: {interessi}",
                    {{"rata", payment.toFixed(2)}, {"interessi", interest.toFixed(2)}})
        << '\n'
        << L10n::tr("rata  data        importo  interessi  capitale  residuo") << '\n';
    for (const LoanPayment& each : schedule) {
        out << each.number << "  " << Iso8601::day(calendar.civilDate(each.date)) << "  " << each.amount.toFixed(2)
            << "  " << each.interest.toFixed(2) << "  " << each.principal.toFixed(2) << "  "
            << each.remaining.toFixed(2) << '\n';
    }
    return 0;
}

}  // namespace

int runLoan(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    ArgumentRules rules;
    rules.flags = {"--json"};
    rules.valueOptions = {"--principal", "--rate", "--months", "--start"};
    rules.minimumPositional = 1;
    rules.maximumPositional = 1;
    const std::string usage = L10n::tr(loanUsage);
    return runSubcommand(arguments, rules, usage.c_str(), out, err, [&](const Arguments& parsed) -> PreparedWork {
        const std::string& action = parsed.positional().front();
        if (action != "schedule") {
            throw ArgumentError(L10n::tr("Azione sconosciuta: {testo} (c'è solo schedule).", {{"testo", action}}));
        }
        const Calendar calendar = Calendar::current();
        const Loan loan = loanFromArguments(parsed, calendar);
        return [loan, calendar, &parsed, &out] { return printSchedule(loan, calendar, parsed.has("--json"), out); };
    });
}

}  // namespace vantello::cli
