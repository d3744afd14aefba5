#include "core/ledger/Asset.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

const auto assetValuationFields = std::tuple{
    JsonFields::required("date", &Asset::Valuation::date),
    JsonFields::required("value", &Asset::Valuation::value),
};

void to_json(Json& json, const Asset::Valuation& valuation) { JsonFields::write(json, valuation, assetValuationFields); }

void from_json(const Json& json, Asset::Valuation& valuation) { JsonFields::read(json, valuation, assetValuationFields); }

const auto assetFields = std::tuple{
    JsonFields::required("id", &Asset::id),
    JsonFields::required("name", &Asset::name),
    JsonFields::required("symbol", &Asset::symbol),
    // The list order is meaningful (the last valuation on or before a date wins): kept as is.
    JsonFields::required("valuations", &Asset::valuations),
};

void to_json(Json& json, const Asset& asset) { JsonFields::write(json, asset, assetFields); }

void from_json(const Json& json, Asset& asset) { JsonFields::read(json, asset, assetFields); }

}  // namespace vantello
