#include "core/analysis/AlertSettings.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

const auto alertSettingsFields = std::tuple{
    // The set is written in the kinds' order, so equal settings always give the same text.
    JsonFields::orDefault("enabled", &AlertSettings::enabled, AlertSettings{}.enabled),
};

void to_json(Json& json, const AlertSettings& settings) { JsonFields::write(json, settings, alertSettingsFields); }

void from_json(const Json& json, AlertSettings& settings) { JsonFields::read(json, settings, alertSettingsFields); }

}  // namespace vantello
