#include "cli/ScenarioCommand.hpp"

#include "cli/Arguments.hpp"
#include "cli/DayOption.hpp"
#include "cli/LedgerAccess.hpp"
#include "cli/Subcommand.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"
#include "core/base/PeopleFormat.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/planning/Scenario.hpp"

#include <optional>

namespace vantello::cli {

namespace {

constexpr const char* textLocale = "it_IT";

std::string euro(const Decimal& amount) { return PeopleFormat::euro(amount, textLocale); }

[[noreturn]] void badValue(std::string_view option, std::string_view value, std::string_view expected) {
    throw ArgumentError(L10n::tr("Valore non valido per {opzione}: «{valore}» ({atteso}).",
                                 {{"opzione", option}, {"valore", value}, {"atteso", expected}}));
}

// "-10" or "15" (or "2,5") as the fraction -0.1, 0.15 or 0.025; never below -100 %.
double percentOption(std::string_view option, std::string_view text) {
    std::string_view digits = text;
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) digits.remove_prefix(1);
    const std::optional<Decimal> magnitude = AmountParser::parse(digits);
    if (!magnitude || (negative && *magnitude > Decimal(100))) {
        badValue(option, text, L10n::tr("serve una percentuale come -10 o 15, non sotto -100"));
    }
    return (negative ? -*magnitude : *magnitude).dividedBy(100)->toDouble();
}

ScenarioAdjustment categoryAdjustment(const std::string& text) {
    const auto equals = text.rfind('=');
    if (equals == std::string::npos || equals == 0) {
        badValue("--category", text, L10n::tr("serve ID=PERCENTUALE, per esempio spesa=-10"));
    }
    const double percent = percentOption("--category", std::string_view(text).substr(equals + 1));
    return {Uuid::random(), ScenarioAdjustment::Category{text.substr(0, equals), percent}};
}

// The adjustments typed: the categories in command-line order, then income, then the extra expense.
std::vector<ScenarioAdjustment> adjustmentsFrom(const Arguments& arguments) {
    std::vector<ScenarioAdjustment> adjustments;
    for (const std::string& text : arguments.values("--category")) adjustments.push_back(categoryAdjustment(text));
    if (const auto income = arguments.value("--income")) {
        adjustments.push_back({Uuid::random(), ScenarioAdjustment::Income{percentOption("--income", *income)}});
    }
    if (const auto text = arguments.value("--monthly-expense")) {
        const std::optional<Decimal> amount = AmountParser::parse(*text);
        if (!amount) badValue("--monthly-expense", *text, L10n::tr("serve un importo come 12,50"));
        adjustments.push_back({Uuid::random(), ScenarioAdjustment::MonthlyExpense{*amount}});
    }
    return adjustments;
}

// A mistyped category would silently change nothing.
void checkCategories(const std::vector<ScenarioAdjustment>& adjustments, const Ledger& ledger) {
    for (const ScenarioAdjustment& adjustment : adjustments) {
        const auto* category = std::get_if<ScenarioAdjustment::Category>(&adjustment.change);
        if (category && !ledger.category(category->categoryID)) {
            throw ArgumentError(L10n::tr("La categoria «{id}» non esiste.", {{"id", category->categoryID}}));
        }
    }
}

std::string monthLine(const Decimal& income, const Decimal& expenses) {
    return L10n::tr("entrate {entrate}, uscite {uscite}, risparmio {risparmio}",
                    {{"entrate", euro(income)}, {"uscite", euro(expenses)}, {"risparmio", euro(income - expenses)}});
}

std::string goalDate(const ScenarioResult::GoalImpact& impact, const std::optional<Instant>& date,
                     const Calendar& calendar) {
    if (date) return PeopleFormat::shortDate(*date, calendar, textLocale);
    if (impact.goal.saved() >= impact.goal.target) return L10n::tr("già raggiunto");
    return L10n::tr("non a questo ritmo");
}

void print(const ScenarioResult& result, const Calendar& calendar, std::ostream& out) {
    out << L10n::tr("Mese medio ({mesi} mesi): {mese}", {{"mesi", std::to_string(result.basisMonths)},
                                                         {"mese", monthLine(result.baselineIncome, result.baselineExpenses)}})
        << '\n'
        << L10n::tr("Con le modifiche: {mese}", {{"mese", monthLine(result.scenarioIncome, result.scenarioExpenses)}})
        << '\n'
        << L10n::tr("Risparmi accumulati, senza e con le modifiche:") << '\n';
    for (const ScenarioResult::ProjectionPoint& point : result.projection) {
        out << "  " << Iso8601::month(calendar.civilDate(point.month)) << "  " << euro(point.baseline) << "  "
            << euro(point.scenario) << '\n';
    }
    for (const ScenarioResult::GoalImpact& impact : result.goals) {
        out << L10n::tr("Obiettivo «{nome}»: senza modifiche {prima}, con le modifiche {dopo}",
                        {{"nome", impact.goal.name},
                         {"prima", goalDate(impact, impact.baselineDate, calendar)},
                         {"dopo", goalDate(impact, impact.scenarioDate, calendar)}})
            << '\n';
    }
}

int simulate(const Ledger& ledger, const std::vector<ScenarioAdjustment>& adjustments, Instant now,
             const Calendar& calendar, bool json, std::ostream& out) {
    const ScenarioResult result = simulateScenario(ledger, adjustments, now, calendar);
    if (json) {
        out << JsonCoding::pretty(Json(result));
    } else if (result.basisMonths == 0) {
        out << L10n::tr("Servono i movimenti di almeno un mese completo per simulare.") << '\n';
    } else {
        print(result, calendar, out);
    }
    return 0;
}

}  // namespace

int runScenario(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    ArgumentRules rules;
    rules.flags = {"--json"};
    rules.valueOptions = {"--income", "--monthly-expense", "--today"};
    rules.repeatedOptions = {"--category"};
    const std::string usage = L10n::tr(scenarioUsage);
    return runSubcommand(arguments, rules, usage.c_str(), out, err, [&](const Arguments& parsed) -> PreparedWork {
        const Calendar calendar = Calendar::current();
        const Instant now = nowFromArguments(parsed, calendar);
        std::vector<ScenarioAdjustment> adjustments = adjustmentsFrom(parsed);
        Ledger ledger = readLedger(parsed);
        checkCategories(adjustments, ledger);
        return [ledger = std::move(ledger), adjustments = std::move(adjustments), now, calendar,
                json = parsed.has("--json"), &out] { return simulate(ledger, adjustments, now, calendar, json, out); };
    });
}

}  // namespace vantello::cli
