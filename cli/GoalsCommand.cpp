#include "cli/GoalsCommand.hpp"

#include "cli/DayOption.hpp"
#include "cli/LedgerAccess.hpp"
#include "cli/Subcommand.hpp"
#include "core/base/Json.hpp"
#include "core/base/PeopleFormat.hpp"
#include "core/planning/GoalProgress.hpp"

namespace vantello::cli {

namespace {

constexpr const char* textLocale = "it_IT";

void printGoal(const SavingsGoal& goal, const GoalProgress& progress, const Calendar& calendar, std::ostream& out) {
    const auto euro = [](const Decimal& amount) { return PeopleFormat::euro(amount, textLocale); };
    const auto day = [&](Instant moment) { return PeopleFormat::shortDate(moment, calendar, textLocale); };
    out << goal.name << ": " << euro(progress.saved) << " di " << euro(goal.target) << " ("
        << goalStatusLabel(progress.status) << ")\n";
    if (goal.deadline) out << "  scadenza " << day(*goal.deadline) << '\n';
    if (progress.monthlyAmountNeeded) out << "  servono " << euro(*progress.monthlyAmountNeeded) << " al mese\n";
    if (progress.projectedReachDate) out << "  a questo ritmo raggiunto il " << day(*progress.projectedReachDate) << '\n';
}

int listGoals(const Arguments& arguments, Instant now, const Calendar& calendar, std::ostream& out) {
    const Ledger ledger = readLedger(arguments);
    Json document = Json::array();
    for (const SavingsGoal& goal : ledger.data().savingsGoals) {
        const GoalProgress progress = goalProgress(goal, now, calendar);
        if (arguments.has("--json")) {
            Json entry = goal;
            entry.update(Json(progress));
            document.push_back(std::move(entry));
        } else {
            printGoal(goal, progress, calendar, out);
        }
    }
    if (arguments.has("--json")) {
        out << JsonCoding::pretty(document);
    } else {
        out << "Obiettivi: " << ledger.data().savingsGoals.size() << '\n';
    }
    return 0;
}

}  // namespace

int runGoals(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    ArgumentRules rules;
    rules.flags = {"--json"};
    rules.valueOptions = {"--today"};
    return runSubcommand(arguments, rules, goalsUsage, out, err, [&](const Arguments& parsed) -> PreparedWork {
        const Calendar calendar = Calendar::current();
        const Instant now = nowFromArguments(parsed, calendar);
        return [&parsed, now, calendar, &out] { return listGoals(parsed, now, calendar, out); };
    });
}

}  // namespace vantello::cli
