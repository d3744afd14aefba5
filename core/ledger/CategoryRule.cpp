#include "core/ledger/CategoryRule.hpp"

namespace vantello {

void to_json(Json& json, const CategoryRule& rule) {
    json = Json::object();
    json["id"] = rule.id;
    json["pattern"] = rule.pattern;
    json["categoryID"] = rule.categoryID;
}

void from_json(const Json& json, CategoryRule& rule) {
    using namespace JsonCoding;
    rule.id = required<Uuid>(json, "id");
    rule.pattern = required<std::string>(json, "pattern");
    rule.categoryID = required<std::string>(json, "categoryID");
}

}  // namespace vantello
