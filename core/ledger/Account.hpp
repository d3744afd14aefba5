#pragma once
// A place where money sits: a bank account, a card, cash. The main account always exists.

#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/ledger/AccountIDs.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace vantello {

struct Account {
    std::string id;
    std::string name;
    std::string symbol;
    Decimal openingBalance;
    std::optional<Decimal> lowBalanceThreshold;  // warn when the balance falls below it

    // "principale", "Conto principale" (localised), "building.columns", balance 0.
    [[nodiscard]] static Account main();
    bool operator==(const Account&) const = default;
};

void to_json(Json& json, const Account& account);
void from_json(const Json& json, Account& account);

}  // namespace vantello
