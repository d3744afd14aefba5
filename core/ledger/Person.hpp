#pragma once
// Someone the user shares expenses with.

#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

#include <string>

namespace vantello {

struct Person {
    Uuid id;
    std::string name;
    bool operator==(const Person&) const = default;
};

void to_json(Json& json, const Person& person);
void from_json(const Json& json, Person& person);

}  // namespace vantello
