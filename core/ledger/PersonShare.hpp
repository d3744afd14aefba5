#pragma once
// The part of one of the user's expenses that another person owes.

#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

namespace vantello {

struct PersonShare {
    Uuid personID;
    Decimal amount;  // kept in files as decimal text

    bool operator==(const PersonShare&) const = default;
};

void to_json(Json& json, const PersonShare& share);
void from_json(const Json& json, PersonShare& share);

}  // namespace vantello
