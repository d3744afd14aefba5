#include "core/ledger/Account.hpp"

#include "core/base/JsonFields.hpp"
#include "core/base/Localization.hpp"

#include <tuple>

namespace vantello {

Account Account::main() {
    return Account{std::string(mainAccountID), L10n::tr("Conto principale"), "building.columns", Decimal{},
                   std::nullopt};
}

const auto accountFields = std::tuple{
    JsonFields::required("id", &Account::id),
    JsonFields::required("name", &Account::name),
    // A missing icon must not cost the user the whole file; the screens show a neutral one.
    JsonFields::orDefault("symbol", &Account::symbol, std::string()),
    JsonFields::required("openingBalance", &Account::openingBalance),
    JsonFields::optional("lowBalanceThreshold", &Account::lowBalanceThreshold),
};

void to_json(Json& json, const Account& account) { JsonFields::write(json, account, accountFields); }

void from_json(const Json& json, Account& account) { JsonFields::read(json, account, accountFields); }

}  // namespace vantello
