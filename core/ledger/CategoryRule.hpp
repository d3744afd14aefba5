#pragma once
// Files a movement under a category when its description contains a text.

#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

#include <string>

namespace vantello {

struct CategoryRule {
    Uuid id;
    std::string pattern;  // looked for in the note, ignoring case and accents
    std::string categoryID;
    bool operator==(const CategoryRule&) const = default;
};

void to_json(Json& json, const CategoryRule& rule);
void from_json(const Json& json, CategoryRule& rule);

}  // namespace vantello
