#pragma once
// A file attached to a movement: the record the ledger keeps, while the copy itself lives in
// the attachments folder under `storedName`.

#include "core/base/Instant.hpp"
#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

#include <cstdint>
#include <string>

namespace vantello {

struct Attachment {
    Uuid id;
    std::string originalName;  // the name of the file the user picked, shown on screen
    std::string storedName;    // the name of the copy inside the attachments folder
    std::int64_t byteCount = 0;
    Instant addedAt;

    bool operator==(const Attachment&) const = default;
};

void to_json(Json& json, const Attachment& attachment);
void from_json(const Json& json, Attachment& attachment);

}  // namespace vantello
