#include "core/files/ManagedProfile.hpp"

#include "core/base/JsonFields.hpp"
#include "core/base/Localization.hpp"
#include "core/base/Text.hpp"

#include <tuple>

namespace vantello {

namespace {

constexpr JsonFields::EnumNames<ManagedProfile::Kind, 2> kindNames{{
    {ManagedProfile::Kind::person, "person"},
    {ManagedProfile::Kind::household, "household"},
}};

const auto profileFields = std::tuple{
    JsonFields::required("id", &ManagedProfile::id),
    JsonFields::required("kind", &ManagedProfile::kind),
    JsonFields::orDefault("firstName", &ManagedProfile::firstName),
    JsonFields::required("lastName", &ManagedProfile::lastName),
    JsonFields::required("createdAt", &ManagedProfile::createdAt),
};

}  // namespace

std::string ManagedProfile::displayName() const {
    if (kind == Kind::household) return L10n::tr("Famiglia {cognome}", {{"cognome", lastName}});
    return Text::trimmed(firstName + " " + lastName);
}

void to_json(Json& json, const ManagedProfile::Kind& kind) { JsonFields::writeName(json, kind, kindNames); }

void from_json(const Json& json, ManagedProfile::Kind& kind) {
    kind = JsonFields::readName(json, kindNames, L10n::key("Tipo di gestione sconosciuto: {text}"));
}

void to_json(Json& json, const ManagedProfile& profile) { JsonFields::write(json, profile, profileFields); }

void from_json(const Json& json, ManagedProfile& profile) { JsonFields::read(json, profile, profileFields); }

}  // namespace vantello
