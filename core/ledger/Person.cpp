#include "core/ledger/Person.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

const auto personFields = std::tuple{
    JsonFields::required("id", &Person::id),
    JsonFields::required("name", &Person::name),
};

void to_json(Json& json, const Person& person) { JsonFields::write(json, person, personFields); }

void from_json(const Json& json, Person& person) { JsonFields::read(json, person, personFields); }

}  // namespace vantello
