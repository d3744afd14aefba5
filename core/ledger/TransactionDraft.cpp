#include "core/ledger/TransactionDraft.hpp"

#include "core/base/DecimalFormat.hpp"
#include "core/base/Text.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/ledger/TransactionCategory.hpp"

#include <utility>

namespace vantello {
namespace {

constexpr std::string_view euroCode = "EUR";

}  // namespace

TransactionDraft::TransactionDraft(TransactionKind kind, Instant date, std::string categoryID,
                                   std::string accountID)
    : id(Uuid::random()),
      kind(kind),
      date(date),
      categoryID(std::move(categoryID)),
      accountID(std::move(accountID)) {}

TransactionDraft::TransactionDraft(const Transaction& transaction, std::string_view localeName)
    : id(transaction.id),
      isNew(false),
      kind(transaction.kind),
      date(transaction.date),
      categoryID(transaction.categoryID),
      note(transaction.note),
      attachments(transaction.attachments),
      accountID(transaction.accountID),
      recurringRuleID(transaction.recurringRuleID),
      transferToAccountID(transaction.transferToAccountID),
      shares(transaction.shares),
      currency(transaction.currency) {
    const auto separator = decimalSeparator(localeName);
    amountText = plainAmountText(transaction.amount, separator);
    if (transaction.originalAmount) originalAmountText = plainAmountText(*transaction.originalAmount, separator);
}

std::optional<Decimal> TransactionDraft::parsedAmount() const {
    auto amount = AmountParser::parse(amountText);
    if (!amount || amount->sign() <= 0) return std::nullopt;
    return amount;
}

std::optional<Transaction> TransactionDraft::transaction() const {
    const auto amount = parsedAmount();
    if (!amount) return std::nullopt;

    Transaction result;
    result.id = id;
    result.amount = *amount;
    result.date = date;
    result.note = Text::trimmed(note);
    result.attachments = attachments;
    result.accountID = accountID;
    result.recurringRuleID = recurringRuleID;
    result.transferToAccountID = transferToAccountID;

    if (transferToAccountID) {
        result.kind = TransactionKind::expense;
        result.categoryID = std::string(transferCategoryID);
    } else {
        result.kind = kind;
        result.categoryID = categoryID;
    }
    // Others can owe part of an expense, never of an income or of a transfer.
    if (result.kind == TransactionKind::expense && !result.isTransfer()) result.shares = shares;

    if (currency && *currency != euroCode) {
        result.currency = currency;
        result.originalAmount = AmountParser::parse(originalAmountText);
    }
    return result;
}

}  // namespace vantello
