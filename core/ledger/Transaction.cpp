#include "core/ledger/Transaction.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

const auto transactionFields = std::tuple{
    JsonFields::required("id", &Transaction::id),
    JsonFields::required("kind", &Transaction::kind),
    JsonFields::required("amount", &Transaction::amount),
    JsonFields::required("date", &Transaction::date),
    JsonFields::required("categoryID", &Transaction::categoryID),
    JsonFields::orDefault("note", &Transaction::note, std::string()),
    JsonFields::orDefault("attachments", &Transaction::attachments),
    // Files written before there were accounts put everything on the main account.
    JsonFields::orDefault("accountID", &Transaction::accountID, std::string(mainAccountID)),
    JsonFields::optional("recurringRuleID", &Transaction::recurringRuleID),
    JsonFields::optional("transferToAccountID", &Transaction::transferToAccountID),
    JsonFields::omittedWhenEmpty("shares", &Transaction::shares),
    JsonFields::optional("currency", &Transaction::currency),
    JsonFields::optional("originalAmount", &Transaction::originalAmount),
};

void to_json(Json& json, const Transaction& transaction) { JsonFields::write(json, transaction, transactionFields); }

void from_json(const Json& json, Transaction& transaction) { JsonFields::read(json, transaction, transactionFields); }

}  // namespace vantello
