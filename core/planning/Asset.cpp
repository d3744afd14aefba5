#include "core/planning/Asset.hpp"

namespace vantello {

void to_json(Json& json, const Asset::Valuation& valuation) {
    json = Json::object();
    json["date"] = valuation.date;
    json["value"] = DecimalText{valuation.value};
}

void from_json(const Json& json, Asset::Valuation& valuation) {
    using namespace JsonCoding;
    valuation.date = required<Instant>(json, "date");
    valuation.value = required<DecimalText>(json, "value").wrappedValue;
}

void to_json(Json& json, const Asset& asset) {
    json = Json::object();
    json["id"] = asset.id;
    json["name"] = asset.name;
    json["symbol"] = asset.symbol;
    // The list order is meaningful (the last valuation on or before a date wins): kept as is.
    json["valuations"] = asset.valuations;
}

void from_json(const Json& json, Asset& asset) {
    using namespace JsonCoding;
    asset.id = required<Uuid>(json, "id");
    asset.name = required<std::string>(json, "name");
    asset.symbol = required<std::string>(json, "symbol");
    asset.valuations = required<std::vector<Asset::Valuation>>(json, "valuations");
}

}  // namespace vantello
