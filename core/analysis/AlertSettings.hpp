#pragma once
// Which kinds of smart alert the user wants; a kind left out is never worked out. Kept by the
// application with its preferences as {"enabled": ["unusualSpending", ...]}.

#include "core/analysis/SmartAlert.hpp"
#include "core/base/Json.hpp"

#include <set>

namespace vantello {

struct AlertSettings {
    std::set<SmartAlert::Kind> enabled{allSmartAlertKinds.begin(), allSmartAlertKinds.end()};

    [[nodiscard]] bool isEnabled(SmartAlert::Kind kind) const { return enabled.contains(kind); }

    bool operator==(const AlertSettings&) const = default;
};

// A missing "enabled" reads as every kind; an unknown kind name is a DecodingError.
void to_json(Json& json, const AlertSettings& settings);
void from_json(const Json& json, AlertSettings& settings);

}  // namespace vantello
