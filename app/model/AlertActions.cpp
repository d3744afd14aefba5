#include "app/model/AlertActions.hpp"

#include "app/model/DisplayText.hpp"
#include "core/analysis/AlertDismissal.hpp"
#include "core/ledger/LedgerAccounts.hpp"

namespace vantello::app {

void dismissSmartAlert(LedgerViewModel& model, const std::string& alertID) {
    model.apply(uiText("Nascondi avviso"), [&](Ledger& ledger) { dismissAlert(ledger, alertID); });
}

std::optional<QString> setLowBalanceThreshold(LedgerViewModel& model, const std::string& accountID,
                                              std::optional<Decimal> threshold) {
    const Account* account = model.ledger().account(accountID);
    if (!account || account->lowBalanceThreshold == threshold) return std::nullopt;
    Account changed = *account;
    changed.lowBalanceThreshold = threshold;
    return model.apply(uiText("Soglia di saldo basso"), [&](Ledger& ledger) { updateAccount(ledger, changed); },
                       LedgerViewModel::ErrorRoute::caller);
}

}  // namespace vantello::app
