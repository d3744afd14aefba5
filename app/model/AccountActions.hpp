#pragma once
// What the accounts screen changes in the ledger, each through the model's one door (saved,
// undoable), with the amounts read as the user typed them ("1.250,00"). Failures come back as
// text for the sheet or the screen to show.

#include "app/model/LedgerViewModel.hpp"

#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vantello::app {

// An account as the sheet has it. The opening balance may start with a minus (a card in debt);
// an empty threshold means no low-balance warning.
struct AccountForm {
    QString name;
    std::string symbol;
    QString openingBalance;
    QString lowBalanceThreshold;
};

// What deleting an account would do, worked out by the core's own deletion on a copy: the
// movements moved to the main account and, among them, the transfers with the main account
// that stop being transfers.
struct AccountDeletion {
    int movedMovements = 0;
    int dissolvedTransfers = 0;
};
[[nodiscard]] AccountDeletion accountDeletionPreview(const Ledger& ledger, std::string_view accountID);

// The threshold as the edit sheet shows it: "250,00" in Italian, empty when none.
[[nodiscard]] QString editableAmountText(const std::optional<Decimal>& amount);

// Adds the account; returns its id, or the reason it cannot be added.
[[nodiscard]] std::variant<std::string, QString> addAccountFromForm(LedgerViewModel& model, const AccountForm& form);
// Changes name, icon and threshold; the opening balance stays as it is.
[[nodiscard]] std::optional<QString> changeAccount(LedgerViewModel& model, const std::string& accountID,
                                                   const AccountForm& form);
// Deletes the account; returns how many movements the core moved, or its refusal.
[[nodiscard]] std::variant<int, QString> removeAccount(LedgerViewModel& model, const std::string& accountID);

}  // namespace vantello::app
