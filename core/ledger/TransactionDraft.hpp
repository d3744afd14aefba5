#pragma once
// The editor's working copy of a movement: amounts as typed text, everything else as it will
// be stored. It turns into a Transaction only when its amount reads as more than zero.

#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/Attachment.hpp"
#include "core/ledger/PersonShare.hpp"
#include "core/ledger/Transaction.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantello {

struct TransactionDraft {
    Uuid id;
    bool isNew = true;
    TransactionKind kind = TransactionKind::expense;
    std::string amountText;
    Instant date;
    std::string categoryID;
    std::string note;
    std::vector<Attachment> attachments;
    std::string accountID;
    std::optional<Uuid> recurringRuleID;  // carried over, never edited
    std::optional<std::string> transferToAccountID;
    std::vector<PersonShare> shares;
    std::optional<std::string> currency;  // absent for euro
    std::string originalAmountText;

    // A new movement with a fresh id and everything else empty.
    TransactionDraft(TransactionKind kind, Instant date, std::string categoryID, std::string accountID);
    // An existing movement for editing: amounts written with two fraction digits and the
    // decimal separator of `localeName` ("it_IT" gives "1250,00"), without grouping, so that
    // they read back to the same value.
    TransactionDraft(const Transaction& transaction, std::string_view localeName);

    // The typed amount when it reads as more than zero.
    [[nodiscard]] std::optional<Decimal> parsedAmount() const;
    // The movement the draft stands for, or nothing when the amount is not valid. The ledger
    // checks category, shares and accounts when the movement is saved.
    [[nodiscard]] std::optional<Transaction> transaction() const;

    bool operator==(const TransactionDraft&) const = default;
};

}  // namespace vantello
