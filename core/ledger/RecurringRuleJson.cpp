// The file form of a recurring rule; its occurrences are computed in RecurringRule.cpp.
#include "core/ledger/RecurringRule.hpp"

#include "core/base/Localization.hpp"

#include <array>
#include <string_view>
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

void to_json(Json& json, const RecurringRule& rule) {
    json = Json::object();
    json["id"] = rule.id;
    json["kind"] = rule.kind;
    json["amount"] = rule.amount;
    json["categoryID"] = rule.categoryID;
    json["accountID"] = rule.accountID;
    json["note"] = rule.note;
    json["frequency"] = rule.frequency;
    json["startDate"] = rule.startDate;
    JsonCoding::putIfPresent(json, "endDate", rule.endDate);
    JsonCoding::putIfPresent(json, "lastGenerated", rule.lastGenerated);
    JsonCoding::putIfPresent(json, "transferToAccountID", rule.transferToAccountID);
}

void from_json(const Json& json, RecurringRule& rule) {
    using namespace JsonCoding;
    rule.id = required<Uuid>(json, "id");
    rule.kind = required<TransactionKind>(json, "kind");
    rule.amount = required<Decimal>(json, "amount");
    rule.categoryID = required<std::string>(json, "categoryID");
    rule.accountID = required<std::string>(json, "accountID");
    rule.note = valueOr<std::string>(json, "note", "");
    rule.frequency = required<RecurringRule::Frequency>(json, "frequency");
    rule.startDate = required<Instant>(json, "startDate");
    rule.endDate = optional<Instant>(json, "endDate");
    rule.lastGenerated = optional<Instant>(json, "lastGenerated");
    rule.transferToAccountID = optional<std::string>(json, "transferToAccountID");
}

}  // namespace vantello
