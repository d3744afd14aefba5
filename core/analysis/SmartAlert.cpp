#include "core/analysis/SmartAlert.hpp"

#include "core/base/JsonFields.hpp"
#include "core/base/Localization.hpp"

#include <tuple>

namespace vantello {

namespace {

using Kind = SmartAlert::Kind;

constexpr JsonFields::EnumNames<Kind, 4> kindNames{{
    {Kind::unusualSpending, "unusualSpending"},
    {Kind::possibleDuplicate, "possibleDuplicate"},
    {Kind::lowBalance, "lowBalance"},
    {Kind::negativeForecast, "negativeForecast"},
}};

}  // namespace

void to_json(Json& json, SmartAlert::Kind kind) { JsonFields::writeName(json, kind, kindNames); }

void from_json(const Json& json, SmartAlert::Kind& kind) {
    kind = JsonFields::readName(json, kindNames, L10n::key("Tipo di avviso sconosciuto: {text}"));
}

const auto smartAlertFields = std::tuple{
    JsonFields::required("id", &SmartAlert::id),
    JsonFields::required("kind", &SmartAlert::kind),
    JsonFields::required("title", &SmartAlert::title),
    JsonFields::required("message", &SmartAlert::message),
    JsonFields::orDefault("transactionIDs", &SmartAlert::transactionIDs),
};

void to_json(Json& json, const SmartAlert& alert) { JsonFields::write(json, alert, smartAlertFields); }

void from_json(const Json& json, SmartAlert& alert) { JsonFields::read(json, alert, smartAlertFields); }

}  // namespace vantello
