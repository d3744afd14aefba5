#include "core/ledger/Transaction.hpp"

namespace vantello {

void to_json(Json& json, const Transaction& transaction) {
    json = Json::object();
    json["id"] = transaction.id;
    json["kind"] = transaction.kind;
    json["amount"] = DecimalText{transaction.amount};
    json["date"] = transaction.date;
    json["categoryID"] = transaction.categoryID;
    json["note"] = transaction.note;
    json["attachments"] = transaction.attachments;
    json["accountID"] = transaction.accountID;
    JsonCoding::putIfPresent(json, "recurringRuleID", transaction.recurringRuleID);
    JsonCoding::putIfPresent(json, "transferToAccountID", transaction.transferToAccountID);
    if (!transaction.shares.empty()) json["shares"] = transaction.shares;
    JsonCoding::putIfPresent(json, "currency", transaction.currency);
    if (transaction.originalAmount) json["originalAmount"] = DecimalText{*transaction.originalAmount};
}

void from_json(const Json& json, Transaction& transaction) {
    using namespace JsonCoding;
    transaction.id = required<Uuid>(json, "id");
    transaction.kind = required<TransactionKind>(json, "kind");
    transaction.amount = required<DecimalText>(json, "amount").wrappedValue;
    transaction.date = required<Instant>(json, "date");
    transaction.categoryID = required<std::string>(json, "categoryID");
    transaction.note = valueOr<std::string>(json, "note", "");
    transaction.attachments = valueOr<std::vector<Attachment>>(json, "attachments", {});
    // Files written before there were accounts put everything on the main account.
    transaction.accountID = valueOr<std::string>(json, "accountID", std::string(mainAccountID));
    transaction.recurringRuleID = optional<Uuid>(json, "recurringRuleID");
    transaction.transferToAccountID = optional<std::string>(json, "transferToAccountID");
    transaction.shares = valueOr<std::vector<PersonShare>>(json, "shares", {});
    transaction.currency = optional<std::string>(json, "currency");
    const auto originalAmount = optional<DecimalText>(json, "originalAmount");
    transaction.originalAmount =
        originalAmount ? std::optional<Decimal>(originalAmount->wrappedValue) : std::nullopt;
}

}  // namespace vantello
