#include "core/ledger/PersonShare.hpp"

namespace vantello {

void to_json(Json& json, const PersonShare& share) {
    json = Json::object();
    json["personID"] = share.personID;
    json["amount"] = DecimalText{share.amount};
}

void from_json(const Json& json, PersonShare& share) {
    share.personID = JsonCoding::required<Uuid>(json, "personID");
    share.amount = JsonCoding::required<DecimalText>(json, "amount").wrappedValue;
}

}  // namespace vantello
