#include "core/planning/Scenario.hpp"

#include "core/analysis/CategoryBreakdown.hpp"
#include "core/analysis/PeriodTotals.hpp"
#include "core/planning/GoalProgress.hpp"

#include <algorithm>
#include <map>

namespace vantello {

namespace {

constexpr int projectedMonths = 12;

// The basis months summed: income and expenses, expenses per category, and how many months held
// a movement.
struct Basis {
    PeriodTotals totals;
    std::map<std::string, Decimal> categorySums;
    int months = 0;
};

Basis basisOf(const Ledger& ledger, Instant currentMonthStart, int monthCount, const Calendar& calendar) {
    std::vector<DateInterval> months;  // the month before the current one first
    for (int back = 1; back <= monthCount; ++back) {
        const std::optional<Instant> moment = calendar.adding(CalendarUnit::month, -back, currentMonthStart);
        if (!moment) break;
        months.push_back(calendar.monthInterval(*moment));
    }
    Basis basis;
    if (months.empty()) return basis;
    const Instant oldest = months.back().start;
    std::vector<bool> held(months.size(), false);
    // Movements come newest first as a rule but not always (one added since the last load sits
    // at the end), so the walk goes to the end; one comparison sends most of them away.
    for (const Transaction& transaction : ledger.transactions()) {
        if (transaction.date < oldest || !(transaction.date < currentMonthStart)) continue;
        const auto month =
            std::ranges::find_if(months, [&](const DateInterval& interval) { return interval.contains(transaction.date); });
        if (month == months.end()) continue;
        held[static_cast<std::size_t>(month - months.begin())] = true;
        addToTotals(basis.totals, transaction);
        addToCategorySums(basis.categorySums, transaction);
    }
    basis.months = static_cast<int>(std::ranges::count(held, true));
    return basis;
}

Decimal averageOf(const Decimal& sum, int months) { return sum.dividedBy(months)->rounded(2); }

// The percent as the shortest decimal that reads back as the same double (-0.1, not
// -0.1000000000000000055…); one that is not a number changes nothing.
Decimal exactPercent(double percent) { return Decimal::fromDouble(percent).value_or(Decimal()); }

std::optional<Instant> dateReached(const SavingsGoal& goal, const Decimal& net, Instant now, const Calendar& calendar) {
    const Decimal remaining = goal.target - goal.saved();
    // A goal already reached is listed without a date: there is nothing left to reach.
    if (remaining.sign() <= 0) return std::nullopt;
    return dateReachedAtPace(remaining, net, now, calendar);
}

}  // namespace

ScenarioResult simulateScenario(const Ledger& ledger, const std::vector<ScenarioAdjustment>& adjustments,
                                Instant now, const Calendar& calendar, int basisMonths) {
    const Instant currentMonthStart = calendar.monthInterval(now).start;
    const Basis basis = basisOf(ledger, currentMonthStart, std::max(basisMonths, 1), calendar);
    ScenarioResult result;
    result.basisMonths = basis.months;
    if (basis.months == 0) return result;

    result.baselineIncome = averageOf(basis.totals.income, basis.months);
    result.baselineExpenses = averageOf(basis.totals.expenses, basis.months);
    std::map<std::string, Decimal> categoryAverages;
    Decimal baselineCategoryExpenses;
    for (const auto& [categoryID, sum] : basis.categorySums) {
        categoryAverages[categoryID] = averageOf(sum, basis.months);
        baselineCategoryExpenses += categoryAverages[categoryID];
    }

    Decimal incomePercent;
    Decimal extraExpenses;
    for (const ScenarioAdjustment& adjustment : adjustments) {
        if (const auto* category = std::get_if<ScenarioAdjustment::Category>(&adjustment.change)) {
            const auto average = categoryAverages.find(category->categoryID);
            if (average != categoryAverages.end()) {
                average->second = (average->second * (Decimal(1) + exactPercent(category->percent))).rounded(2);
            }
        } else if (const auto* income = std::get_if<ScenarioAdjustment::Income>(&adjustment.change)) {
            incomePercent += exactPercent(income->percent);
        } else if (const auto* expense = std::get_if<ScenarioAdjustment::MonthlyExpense>(&adjustment.change)) {
            extraExpenses += expense->amount;
        }
    }
    result.scenarioIncome = (result.baselineIncome * (Decimal(1) + incomePercent)).rounded(2);
    result.scenarioExpenses = extraExpenses;
    for (const auto& [categoryID, average] : categoryAverages) result.scenarioExpenses += average;

    // Both nets take the expenses as the sum of the rounded category averages, the scenario's
    // adjusted: without adjustments the two lines are the same to the cent. The rounded average
    // of all expenses (`baselineExpenses`) can differ from that sum by a few cents.
    const Decimal baselineNet = result.baselineIncome - baselineCategoryExpenses;
    const Decimal scenarioNet = result.scenarioIncome - result.scenarioExpenses;
    for (int ahead = 1; ahead <= projectedMonths; ++ahead) {
        if (const auto month = calendar.adding(CalendarUnit::month, ahead, currentMonthStart)) {
            result.projection.push_back({*month, baselineNet * ahead, scenarioNet * ahead});
        }
    }
    for (const SavingsGoal& goal : ledger.data().savingsGoals) {
        result.goals.push_back({goal, dateReached(goal, baselineNet, now, calendar),
                                dateReached(goal, scenarioNet, now, calendar)});
    }
    return result;
}

void to_json(Json& json, const ScenarioResult::ProjectionPoint& point) {
    json = {{"month", point.month}, {"baseline", point.baseline}, {"scenario", point.scenario}};
}

void to_json(Json& json, const ScenarioResult::GoalImpact& impact) {
    json = {{"goal", impact.goal}};
    JsonCoding::putIfPresent(json, "baselineDate", impact.baselineDate);
    JsonCoding::putIfPresent(json, "scenarioDate", impact.scenarioDate);
}

void to_json(Json& json, const ScenarioResult& result) {
    json = {{"baselineIncome", result.baselineIncome},     {"baselineExpenses", result.baselineExpenses},
            {"scenarioIncome", result.scenarioIncome},     {"scenarioExpenses", result.scenarioExpenses},
            {"basisMonths", result.basisMonths},           {"projection", result.projection},
            {"goals", result.goals}};
}

}  // namespace vantello
