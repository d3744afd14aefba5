#pragma once
// A loan or mortgage with a fixed yearly rate, repaid in equal monthly instalments.

#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

#include <optional>
#include <string>

namespace vantello {

struct Loan {
    Uuid id;
    std::string name;
    Decimal principal;   // amount borrowed
    Decimal annualRate;  // nominal yearly rate in percent (3.5 means 3.5 %)
    int months = 0;      // number of monthly instalments
    Instant firstPayment;
    std::string accountID;
    std::string categoryID;
    std::optional<Uuid> recurringRuleID;  // the rule booking the instalments, when made
    bool operator==(const Loan&) const = default;
};

void to_json(Json& json, const Loan& loan);
void from_json(const Json& json, Loan& loan);

}  // namespace vantello
