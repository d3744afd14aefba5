#pragma once
// Something of value whose worth changes over time (a car, a house, investments).

#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

#include <string>
#include <vector>

namespace vantello {

struct Asset {
    struct Valuation {
        Instant date;
        Decimal value;
        bool operator==(const Valuation&) const = default;
    };

    Uuid id;
    std::string name;
    std::string symbol;
    std::vector<Valuation> valuations;  // the last one on or before a date gives the value
    bool operator==(const Asset&) const = default;
};

void to_json(Json& json, const Asset::Valuation& valuation);
void from_json(const Json& json, Asset::Valuation& valuation);
void to_json(Json& json, const Asset& asset);
void from_json(const Json& json, Asset& asset);

}  // namespace vantello
