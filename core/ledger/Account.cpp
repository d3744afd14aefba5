#include "core/ledger/Account.hpp"

#include "core/base/Localization.hpp"

namespace vantello {

Account Account::main() {
    return Account{std::string(mainAccountID), L10n::tr("Conto principale"), "building.columns", Decimal{},
                   std::nullopt};
}

void to_json(Json& json, const Account& account) {
    json = Json::object();
    json["id"] = account.id;
    json["name"] = account.name;
    json["symbol"] = account.symbol;
    json["openingBalance"] = account.openingBalance;
    JsonCoding::putIfPresent(json, "lowBalanceThreshold", account.lowBalanceThreshold);
}

void from_json(const Json& json, Account& account) {
    using namespace JsonCoding;
    account.id = required<std::string>(json, "id");
    account.name = required<std::string>(json, "name");
    // A missing icon must not cost the user the whole file; the screens show a neutral one.
    account.symbol = valueOr<std::string>(json, "symbol", "");
    account.openingBalance = required<Decimal>(json, "openingBalance");
    account.lowBalanceThreshold = optional<Decimal>(json, "lowBalanceThreshold");
}

}  // namespace vantello
