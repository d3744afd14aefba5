#include "cli/NetWorthCommand.hpp"

#include "cli/DayOption.hpp"
#include "cli/LedgerAccess.hpp"
#include "cli/NumberOptions.hpp"
#include "cli/Subcommand.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"
#include "core/base/Localization.hpp"
#include "core/planning/NetWorth.hpp"

namespace vantello::cli {

namespace {

constexpr int defaultMonths = 12;
constexpr int maximumMonths = 1200;

int show(const Arguments& arguments, int months, Instant now, const Calendar& calendar, std::ostream& out) {
    const Ledger ledger = readLedger(arguments);
    const NetWorth current = netWorth(ledger, now, calendar);
    const std::vector<NetWorthPoint> history = netWorthHistory(ledger, months, now, calendar);
    if (arguments.has("--json")) {
        out << JsonCoding::pretty({{"netWorth", current}, {"history", history}});
        return 0;
    }
    out << L10n::tr("Patrimonio netto: {totale} (conti {conti}, beni {beni}, debiti {debiti})",
                    {{"totale", current.total().toFixed(2)},
                     {"conti", current.accounts.toFixed(2)},
                     {"beni", current.assets.toFixed(2)},
                     {"debiti", current.debts.toFixed(2)}})
        << '\n';
    for (const NetWorthPoint& point : history) {
        out << "  " << Iso8601::day(calendar.civilDate(point.date)) << "  " << point.value.total().toFixed(2) << '\n';
    }
    return 0;
}

}  // namespace

int runNetWorth(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    ArgumentRules rules;
    rules.flags = {"--json"};
    rules.valueOptions = {"--months", "--today"};
    const std::string usage = L10n::tr(netWorthUsage);
    return runSubcommand(arguments, rules, usage.c_str(), out, err, [&](const Arguments& parsed) -> PreparedWork {
        const int months = integerOption(parsed, "--months", 1, maximumMonths).value_or(defaultMonths);
        const Calendar calendar = Calendar::current();
        const Instant now = nowFromArguments(parsed, calendar);
        return [&parsed, months, now, calendar, &out] { return show(parsed, months, now, calendar, out); };
    });
}

}  // namespace vantello::cli
