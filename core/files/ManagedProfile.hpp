#pragma once
// A person or household whose finances the user keeps apart from their own: its own ledger,
// attachments and backups in a data folder named after its id.

#include "core/base/Instant.hpp"
#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

#include <string>

namespace vantello {

struct ManagedProfile {
    enum class Kind { person, household };

    Uuid id;
    Kind kind = Kind::person;
    std::string firstName;  // used for a person only
    std::string lastName;   // the family name for a household
    Instant createdAt;

    // "Nome Cognome" for a person, "Famiglia Cognome" for a household.
    [[nodiscard]] std::string displayName() const;

    bool operator==(const ManagedProfile&) const = default;
};

void to_json(Json& json, const ManagedProfile::Kind& kind);
void from_json(const Json& json, ManagedProfile::Kind& kind);
void to_json(Json& json, const ManagedProfile& profile);
void from_json(const Json& json, ManagedProfile& profile);

}  // namespace vantello
