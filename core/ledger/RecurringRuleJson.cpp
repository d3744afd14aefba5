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

constexpr JsonFields::EnumNames<Frequency, 3> frequencyNames{{
    {Frequency::weekly, "weekly"},
    {Frequency::monthly, "monthly"},
    {Frequency::yearly, "yearly"},
}};

}  // namespace

void to_json(Json& json, RecurringRule::Frequency frequency) { JsonFields::writeName(json, frequency, frequencyNames); }

void from_json(const Json& json, RecurringRule::Frequency& frequency) {
    frequency = JsonFields::readName(json, frequencyNames, L10n::key("Frequenza sconosciuta: {text}"));
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
