#pragma once
// What-if scenarios: the user's average month of the last complete months, changed by a list of
// adjustments (a category spent more or less, income up or down, an extra fixed expense), with
// the savings it accumulates over the next twelve months and when each savings goal would be
// reached, with and without the changes.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/SavingsGoal.hpp"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vantello {

struct ScenarioAdjustment {
    // Percents are fractions: -0.2 is 20 % less, the factor applied being 1 + percent.
    struct Category {
        std::string categoryID;
        double percent = 0;
        bool operator==(const Category&) const = default;
    };
    struct Income {
        double percent = 0;
        bool operator==(const Income&) const = default;
    };
    struct MonthlyExpense {
        Decimal amount;  // added to every month
        bool operator==(const MonthlyExpense&) const = default;
    };
    using Change = std::variant<Category, Income, MonthlyExpense>;

    Uuid id;
    Change change;

    bool operator==(const ScenarioAdjustment&) const = default;
};

struct ScenarioResult {
    struct ProjectionPoint {
        Instant month;  // the first instant of the month
        Decimal baseline;  // savings accumulated by then
        Decimal scenario;
        bool operator==(const ProjectionPoint&) const = default;
    };
    struct GoalImpact {
        SavingsGoal goal;
        std::optional<Instant> baselineDate;  // none without a positive net, or once reached
        std::optional<Instant> scenarioDate;
        bool operator==(const GoalImpact&) const = default;
    };

    Decimal baselineIncome;
    Decimal baselineExpenses;
    Decimal scenarioIncome;
    Decimal scenarioExpenses;
    int basisMonths = 0;  // 0: no month to start from, and nothing else is filled in
    std::vector<ProjectionPoint> projection;  // the twelve months after the current one
    std::vector<GoalImpact> goals;            // every goal, in the ledger's order

    bool operator==(const ScenarioResult&) const = default;
};

// The average of the `basisMonths` months before the one holding `now` (at least 1; a month
// counts only when it holds a movement), with the adjustments applied in order. Several income
// adjustments add their percents; a category without expenses in the basis is left alone.
[[nodiscard]] ScenarioResult simulateScenario(const Ledger& ledger, const std::vector<ScenarioAdjustment>& adjustments,
                                              Instant now, const Calendar& calendar, int basisMonths = 3);

void to_json(Json& json, const ScenarioResult::ProjectionPoint& point);
void to_json(Json& json, const ScenarioResult::GoalImpact& impact);
void to_json(Json& json, const ScenarioResult& result);

}  // namespace vantello
