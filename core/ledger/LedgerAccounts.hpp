#pragma once
// The accounts of a ledger: adding, editing and deleting them, and their balances.

#include "core/base/Decimal.hpp"
#include "core/ledger/Ledger.hpp"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantello {

// A new account with a fresh identifier; AdvancedError for an empty, too long or taken name.
Account addAccount(Ledger& ledger, std::string_view name, std::string symbol, Decimal openingBalance,
                   std::optional<Decimal> lowBalanceThreshold);
void updateAccount(Ledger& ledger, Account account);
// Moves the account's movements and rules to the main account, dissolving transfers that
// would go from the main account to itself; returns how many movements changed.
int deleteAccount(Ledger& ledger, std::string_view id);

// Opening balance plus income, minus expenses, minus transfers out, plus transfers in.
[[nodiscard]] Decimal accountBalance(const Ledger& ledger, std::string_view accountID);
[[nodiscard]] std::map<std::string, Decimal> accountBalances(const Ledger& ledger);
// The balances of the given accounts, in their order, in one walk over the movements.
[[nodiscard]] std::vector<Decimal> accountBalances(const Ledger& ledger, const std::vector<std::string>& accountIDs);

}  // namespace vantello
