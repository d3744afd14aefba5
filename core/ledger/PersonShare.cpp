#include "core/ledger/PersonShare.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

const auto personShareFields = std::tuple{
    JsonFields::required("personID", &PersonShare::personID),
    JsonFields::required("amount", &PersonShare::amount),
};

void to_json(Json& json, const PersonShare& share) { JsonFields::write(json, share, personShareFields); }

void from_json(const Json& json, PersonShare& share) { JsonFields::read(json, share, personShareFields); }

}  // namespace vantello
