#include "core/ledger/Person.hpp"

namespace vantello {

void to_json(Json& json, const Person& person) {
    json = Json::object();
    json["id"] = person.id;
    json["name"] = person.name;
}

void from_json(const Json& json, Person& person) {
    using namespace JsonCoding;
    person.id = required<Uuid>(json, "id");
    person.name = required<std::string>(json, "name");
}

}  // namespace vantello
