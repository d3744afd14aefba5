#include "core/ledger/Attachment.hpp"

namespace vantello {

void to_json(Json& json, const Attachment& attachment) {
    json = Json::object();
    json["id"] = attachment.id;
    json["originalName"] = attachment.originalName;
    json["storedName"] = attachment.storedName;
    json["byteCount"] = attachment.byteCount;
    json["addedAt"] = attachment.addedAt;
}

void from_json(const Json& json, Attachment& attachment) {
    attachment.id = JsonCoding::required<Uuid>(json, "id");
    attachment.originalName = JsonCoding::required<std::string>(json, "originalName");
    attachment.storedName = JsonCoding::required<std::string>(json, "storedName");
    attachment.byteCount = JsonCoding::required<std::int64_t>(json, "byteCount");
    attachment.addedAt = JsonCoding::required<Instant>(json, "addedAt");
}

}  // namespace vantello
