#include "core/analysis/TransactionFilter.hpp"

#include "core/base/Localization.hpp"

#include <array>
#include <string_view>
#include <utility>

namespace vantello {

namespace {

using Period = TransactionFilter::Period;

constexpr std::array<std::pair<Period, std::string_view>, 5> periodNames{{
    {Period::all, "all"},
    {Period::thisMonth, "thisMonth"},
    {Period::thisYear, "thisYear"},
    {Period::last12Months, "last12Months"},
    {Period::custom, "custom"},
}};

}  // namespace

void to_json(Json& json, TransactionFilter::Period period) {
    for (const auto& [value, name] : periodNames) {
        if (value == period) {
            json = std::string(name);
            return;
        }
    }
    json = "all";
}

void from_json(const Json& json, TransactionFilter::Period& period) {
    if (const auto* text = json.get_ptr<const std::string*>()) {
        for (const auto& [value, name] : periodNames) {
            if (name == *text) {
                period = value;
                return;
            }
        }
    }
    throw DecodingError(L10n::tr("Periodo di ricerca sconosciuto: {text}", {{"text", json.dump()}}));
}

void to_json(Json& json, const TransactionFilter& filter) {
    json = Json::object();
    json["text"] = filter.text;
    json["period"] = filter.period;
    JsonCoding::putIfPresent(json, "customStart", filter.customStart);
    JsonCoding::putIfPresent(json, "customEnd", filter.customEnd);
    JsonCoding::putIfPresent(json, "kind", filter.kind);
    // A std::set comes out in ascending order, so the saved file does not change between saves.
    json["categoryIDs"] = filter.categoryIDs;
    JsonCoding::putIfPresent(json, "minAmount", filter.minAmount);
    JsonCoding::putIfPresent(json, "maxAmount", filter.maxAmount);
    json["onlyWithAttachments"] = filter.onlyWithAttachments;
    JsonCoding::putIfPresent(json, "accountID", filter.accountID);
}

void from_json(const Json& json, TransactionFilter& filter) {
    using namespace JsonCoding;
    // Every condition has a neutral value, so a sparse filter still opens as the search it was.
    filter.text = valueOr<std::string>(json, "text", "");
    filter.period = valueOr<TransactionFilter::Period>(json, "period", TransactionFilter::Period::all);
    filter.customStart = optional<Instant>(json, "customStart");
    filter.customEnd = optional<Instant>(json, "customEnd");
    filter.kind = optional<TransactionKind>(json, "kind");
    filter.categoryIDs = valueOr<std::set<std::string>>(json, "categoryIDs", {});
    filter.minAmount = optional<Decimal>(json, "minAmount");
    filter.maxAmount = optional<Decimal>(json, "maxAmount");
    filter.onlyWithAttachments = valueOr<bool>(json, "onlyWithAttachments", false);
    filter.accountID = optional<std::string>(json, "accountID");
}

}  // namespace vantello
