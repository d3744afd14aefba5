// The file form of a recurring rule; its occurrences are computed in RecurringRule.cpp.
#include "core/ledger/RecurringRule.hpp"

#include "core/base/JsonFields.hpp"
#include "core/base/Localization.hpp"

#include <array>
#include <string_view>
#include <tuple>
#include <utility>

namespace vantello {

namespace {

using Frequency = RecurringRule::Frequency;

constexpr std::array<std::pair<Frequency, std::string_view>, 3> frequencyNames{{
    {Frequency::weekly, "weekly"},
    {Frequency::monthly, "monthly"},
    {Frequency::yearly, "yearly"},
}};

}  // namespace

void to_json(Json& json, RecurringRule::Frequency frequency) {
    for (const auto& [value, name] : frequencyNames) {
        if (value == frequency) {
            json = std::string(name);
            return;
        }
    }
    json = "monthly";
}

void from_json(const Json& json, RecurringRule::Frequency& frequency) {
    if (const auto* text = json.get_ptr<const std::string*>()) {
        for (const auto& [value, name] : frequencyNames) {
            if (name == *text) {
                frequency = value;
                return;
            }
        }
    }
    throw DecodingError(L10n::tr("Frequenza sconosciuta: {text}", {{"text", json.dump()}}));
}

const auto recurringRuleFields = std::tuple{
    JsonFields::required("id", &RecurringRule::id),
    JsonFields::required("kind", &RecurringRule::kind),
    JsonFields::required("amount", &RecurringRule::amount),
    JsonFields::required("categoryID", &RecurringRule::categoryID),
    JsonFields::required("accountID", &RecurringRule::accountID),
    JsonFields::orDefault("note", &RecurringRule::note, std::string()),
    JsonFields::required("frequency", &RecurringRule::frequency),
    JsonFields::required("startDate", &RecurringRule::startDate),
    JsonFields::optional("endDate", &RecurringRule::endDate),
    JsonFields::optional("lastGenerated", &RecurringRule::lastGenerated),
    JsonFields::optional("transferToAccountID", &RecurringRule::transferToAccountID),
};

void to_json(Json& json, const RecurringRule& rule) { JsonFields::write(json, rule, recurringRuleFields); }

void from_json(const Json& json, RecurringRule& rule) { JsonFields::read(json, rule, recurringRuleFields); }

}  // namespace vantello
