#include "core/planning/Loan.hpp"

namespace vantello {

void to_json(Json& json, const Loan& loan) {
    json = Json::object();
    json["id"] = loan.id;
    json["name"] = loan.name;
    json["principal"] = DecimalText{loan.principal};
    json["annualRate"] = DecimalText{loan.annualRate};
    json["months"] = loan.months;
    json["firstPayment"] = loan.firstPayment;
    json["accountID"] = loan.accountID;
    json["categoryID"] = loan.categoryID;
    JsonCoding::putIfPresent(json, "recurringRuleID", loan.recurringRuleID);
}

void from_json(const Json& json, Loan& loan) {
    using namespace JsonCoding;
    loan.id = required<Uuid>(json, "id");
    loan.name = required<std::string>(json, "name");
    loan.principal = required<DecimalText>(json, "principal").wrappedValue;
    loan.annualRate = required<DecimalText>(json, "annualRate").wrappedValue;
    loan.months = required<int>(json, "months");
    loan.firstPayment = required<Instant>(json, "firstPayment");
    loan.accountID = required<std::string>(json, "accountID");
    loan.categoryID = required<std::string>(json, "categoryID");
    loan.recurringRuleID = optional<Uuid>(json, "recurringRuleID");
}

}  // namespace vantello
