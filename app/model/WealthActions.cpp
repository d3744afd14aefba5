#include "app/model/WealthActions.hpp"

#include "app/model/DisplayText.hpp"
#include "core/ledger/LedgerAssets.hpp"
#include "core/ledger/LedgerLoans.hpp"
#include "core/planning/LoanBooking.hpp"

#include <algorithm>

namespace vantello::app {

namespace {

bool knownAsset(const Ledger& ledger, const Uuid& id) {
    const auto& assets = ledger.data().assets;
    return std::ranges::any_of(assets, [&](const Asset& asset) { return asset.id == id; });
}

bool knownLoan(const Ledger& ledger, const Uuid& id) {
    const auto& loans = ledger.data().loans;
    return std::ranges::any_of(loans, [&](const Loan& loan) { return loan.id == id; });
}

}  // namespace

std::optional<QString> saveAssetRecord(LedgerViewModel& model, const Asset& asset) {
    const QString action = knownAsset(model.ledger(), asset.id) ? uiText("Modifica bene") : uiText("Nuovo bene");
    return model.apply(action, [&](Ledger& ledger) { saveAsset(ledger, asset); },
                       LedgerViewModel::ErrorRoute::caller);
}

std::optional<QString> addAssetValuation(LedgerViewModel& model, const Uuid& assetID, const Asset::Valuation& valuation) {
    return model.apply(uiText("Aggiorna valore"), [&](Ledger& ledger) { addValuation(ledger, assetID, valuation); },
                       LedgerViewModel::ErrorRoute::caller);
}

void deleteAssetRecord(LedgerViewModel& model, const Uuid& assetID) {
    model.apply(uiText("Elimina bene"), [&](Ledger& ledger) { deleteAsset(ledger, assetID); });
}

std::optional<QString> saveLoanRecord(LedgerViewModel& model, const Loan& loan, bool bookInstalments) {
    const QString action = knownLoan(model.ledger(), loan.id) ? uiText("Modifica prestito") : uiText("Nuovo prestito");
    const Calendar& calendar = model.calendar();
    return model.apply(
        action,
        [&](Ledger& ledger) {
            saveLoan(ledger, loan);
            if (bookInstalments) bookLoanInstalments(ledger, loan.id, calendar);
        },
        LedgerViewModel::ErrorRoute::caller);
}

void bookLoanRecord(LedgerViewModel& model, const Uuid& loanID) {
    const Calendar& calendar = model.calendar();
    model.apply(uiText("Registra le rate"), [&](Ledger& ledger) { bookLoanInstalments(ledger, loanID, calendar); });
}

void deleteLoanRecord(LedgerViewModel& model, const Uuid& loanID) {
    model.apply(uiText("Elimina prestito"), [&](Ledger& ledger) { deleteLoan(ledger, loanID); });
}

}  // namespace vantello::app
