#include "core/analysis/AccountLedger.hpp"

#include <vector>

namespace vantello {

Ledger ledgerOfAccount(const Ledger& ledger, std::string_view accountID) {
    std::vector<Transaction> kept;
    for (const Transaction& transaction : ledger.transactions()) {
        if (transaction.accountID == accountID || transaction.transferToAccountID == accountID) {
            kept.push_back(transaction);
        }
    }
    Ledger filtered = ledger;
    filtered.change([&](LedgerData& data) { data.transactions = std::move(kept); });
    return filtered;
}

}  // namespace vantello
