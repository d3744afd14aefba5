#include "core/analysis/SavedSearch.hpp"

namespace vantello {

void to_json(Json& json, const SavedSearch& search) {
    json = Json::object();
    json["id"] = search.id;
    json["name"] = search.name;
    json["filter"] = search.filter;
}

void from_json(const Json& json, SavedSearch& search) {
    using namespace JsonCoding;
    search.id = required<Uuid>(json, "id");
    search.name = required<std::string>(json, "name");
    search.filter = required<TransactionFilter>(json, "filter");
}

}  // namespace vantello
