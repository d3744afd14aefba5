#include "core/ledger/Attachment.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

const auto attachmentFields = std::tuple{
    JsonFields::required("id", &Attachment::id),
    JsonFields::required("originalName", &Attachment::originalName),
    JsonFields::required("storedName", &Attachment::storedName),
    JsonFields::required("byteCount", &Attachment::byteCount),
    JsonFields::required("addedAt", &Attachment::addedAt),
};

void to_json(Json& json, const Attachment& attachment) { JsonFields::write(json, attachment, attachmentFields); }

void from_json(const Json& json, Attachment& attachment) { JsonFields::read(json, attachment, attachmentFields); }

}  // namespace vantello
