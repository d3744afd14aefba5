#pragma once
// The changes the wealth screen makes to assets and loans, each through the model's one door (so
// that it is saved and can be undone). Those asked for from a sheet return the core's message
// for the sheet to show, which stays open.

#include "app/model/LedgerViewModel.hpp"
#include "core/ledger/Asset.hpp"
#include "core/ledger/Loan.hpp"

#include <QString>

#include <optional>

namespace vantello::app {

// Adds the asset or changes the one with its id.
std::optional<QString> saveAssetRecord(LedgerViewModel& model, const Asset& asset);
// A new value of the asset from the valuation's date on ("Aggiorna valore").
std::optional<QString> addAssetValuation(LedgerViewModel& model, const Uuid& assetID, const Asset::Valuation& valuation);
void deleteAssetRecord(LedgerViewModel& model, const Uuid& assetID);

// Adds the loan or changes the one with its id; with `bookInstalments` its instalments are
// booked as a recurring expense in the same change, undone as one.
std::optional<QString> saveLoanRecord(LedgerViewModel& model, const Loan& loan, bool bookInstalments);
// Books (or books again) the loan's instalments as a recurring expense; the error goes to the
// banner.
void bookLoanRecord(LedgerViewModel& model, const Uuid& loanID);
// Deletes the loan and the rule that books it; the movements already made stay.
void deleteLoanRecord(LedgerViewModel& model, const Uuid& loanID);

}  // namespace vantello::app
