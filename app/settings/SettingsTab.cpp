#include "app/settings/SettingsTab.hpp"

#include "core/base/Localization.hpp"

#include <string_view>

namespace vantello::app {

namespace {

const QString tabKey = QStringLiteral("settingsTab");

struct TabNames {
    const char* raw;
    std::string_view label;
};

TabNames namesOf(SettingsTab tab) {
    switch (tab) {
        case SettingsTab::general: return {"general", L10n::key("Generali")};
        case SettingsTab::backup: return {"backup", L10n::key("Backup")};
        case SettingsTab::appearance: return {"appearance", L10n::key("Aspetto")};
        case SettingsTab::profiles: return {"profiles", L10n::key("Gestioni")};
    }
    return namesOf(SettingsTab::general);
}

}  // namespace

QString rawValue(SettingsTab tab) { return QString::fromLatin1(namesOf(tab).raw); }

std::optional<SettingsTab> settingsTabFromRawValue(const QString& raw) {
    for (const SettingsTab tab : allSettingsTabs) {
        if (raw == rawValue(tab)) return tab;
    }
    return std::nullopt;
}

QString label(SettingsTab tab) { return QString::fromStdString(L10n::tr(namesOf(tab).label)); }

SettingsTab storedSettingsTab(const Preferences& preferences) {
    return settingsTabFromRawValue(preferences.value(tabKey).toString()).value_or(SettingsTab::general);
}

void storeSettingsTab(Preferences& preferences, SettingsTab tab) { preferences.setValue(tabKey, rawValue(tab)); }

}  // namespace vantello::app
