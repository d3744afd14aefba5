#include "core/ledger/SavingsGoal.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

Decimal SavingsGoal::saved() const {
    Decimal sum;
    for (const Contribution& contribution : contributions) sum += contribution.amount;
    return sum;
}

const auto savingsGoalContributionFields = std::tuple{
    JsonFields::required("id", &SavingsGoal::Contribution::id),
    JsonFields::required("date", &SavingsGoal::Contribution::date),
    JsonFields::required("amount", &SavingsGoal::Contribution::amount),
    JsonFields::orDefault("note", &SavingsGoal::Contribution::note, std::string()),
};

void to_json(Json& json, const SavingsGoal::Contribution& contribution) { JsonFields::write(json, contribution, savingsGoalContributionFields); }

void from_json(const Json& json, SavingsGoal::Contribution& contribution) { JsonFields::read(json, contribution, savingsGoalContributionFields); }

const auto savingsGoalFields = std::tuple{
    JsonFields::required("id", &SavingsGoal::id),
    JsonFields::required("name", &SavingsGoal::name),
    JsonFields::required("symbol", &SavingsGoal::symbol),
    JsonFields::required("target", &SavingsGoal::target),
    JsonFields::optional("deadline", &SavingsGoal::deadline),
    JsonFields::required("createdAt", &SavingsGoal::createdAt),
    JsonFields::required("contributions", &SavingsGoal::contributions),
};

void to_json(Json& json, const SavingsGoal& goal) { JsonFields::write(json, goal, savingsGoalFields); }

void from_json(const Json& json, SavingsGoal& goal) { JsonFields::read(json, goal, savingsGoalFields); }

}  // namespace vantello
