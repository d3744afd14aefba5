#pragma once
// The tabs of the settings window, in order, and the one last chosen (preference
// "settingsTab", kept as the tab's raw text; "general" when none or an unknown one is stored).

#include "app/settings/Preferences.hpp"

#include <QString>

#include <array>
#include <optional>

namespace vantello::app {

enum class SettingsTab { general, backup, appearance, profiles };

inline constexpr std::array<SettingsTab, 4> allSettingsTabs = {
    SettingsTab::general, SettingsTab::backup, SettingsTab::appearance, SettingsTab::profiles,
};

// "general", "backup", "appearance", "profiles".
[[nodiscard]] QString rawValue(SettingsTab tab);
[[nodiscard]] std::optional<SettingsTab> settingsTabFromRawValue(const QString& raw);
// "Generali", "Backup", "Aspetto", "Gestioni".
[[nodiscard]] QString label(SettingsTab tab);

[[nodiscard]] SettingsTab storedSettingsTab(const Preferences& preferences);
void storeSettingsTab(Preferences& preferences, SettingsTab tab);

}  // namespace vantello::app
