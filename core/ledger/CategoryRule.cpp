#include "core/ledger/CategoryRule.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

const auto categoryRuleFields = std::tuple{
    JsonFields::required("id", &CategoryRule::id),
    JsonFields::required("pattern", &CategoryRule::pattern),
    JsonFields::required("categoryID", &CategoryRule::categoryID),
};

void to_json(Json& json, const CategoryRule& rule) { JsonFields::write(json, rule, categoryRuleFields); }

void from_json(const Json& json, CategoryRule& rule) { JsonFields::read(json, rule, categoryRuleFields); }

}  // namespace vantello
