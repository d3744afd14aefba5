#include "core/planning/SavingsGoal.hpp"

namespace vantello {

void to_json(Json& json, const SavingsGoal::Contribution& contribution) {
    json = Json::object();
    json["id"] = contribution.id;
    json["date"] = contribution.date;
    json["amount"] = contribution.amount;
    json["note"] = contribution.note;
}

void from_json(const Json& json, SavingsGoal::Contribution& contribution) {
    using namespace JsonCoding;
    contribution.id = required<Uuid>(json, "id");
    contribution.date = required<Instant>(json, "date");
    contribution.amount = required<Decimal>(json, "amount");
    contribution.note = valueOr<std::string>(json, "note", "");
}

void to_json(Json& json, const SavingsGoal& goal) {
    json = Json::object();
    json["id"] = goal.id;
    json["name"] = goal.name;
    json["symbol"] = goal.symbol;
    json["target"] = goal.target;
    JsonCoding::putIfPresent(json, "deadline", goal.deadline);
    json["createdAt"] = goal.createdAt;
    json["contributions"] = goal.contributions;
}

void from_json(const Json& json, SavingsGoal& goal) {
    using namespace JsonCoding;
    goal.id = required<Uuid>(json, "id");
    goal.name = required<std::string>(json, "name");
    goal.symbol = required<std::string>(json, "symbol");
    goal.target = required<Decimal>(json, "target");
    goal.deadline = optional<Instant>(json, "deadline");
    goal.createdAt = required<Instant>(json, "createdAt");
    goal.contributions = required<std::vector<SavingsGoal::Contribution>>(json, "contributions");
}

}  // namespace vantello
