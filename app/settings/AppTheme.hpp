#pragma once
// The colour theme the user chooses for every window, kept under the preference "appTheme" as
// its raw text; `system` (the default) follows the desktop's appearance.

#include "app/settings/Preferences.hpp"

#include <QString>

#include <array>
#include <optional>

namespace vantello::app {

enum class AppTheme { system, light, dark, solarizedLight, solarizedDark };

// In the order the settings show them.
inline constexpr std::array<AppTheme, 5> allThemes = {
    AppTheme::system, AppTheme::light, AppTheme::dark, AppTheme::solarizedLight, AppTheme::solarizedDark,
};

// "system", "light", "dark", "solarizedLight", "solarizedDark".
[[nodiscard]] QString rawValue(AppTheme theme);
[[nodiscard]] std::optional<AppTheme> themeFromRawValue(const QString& raw);

// "Automatico", "Chiaro", … in the interface language.
[[nodiscard]] QString label(AppTheme theme);
// The heading of the swatches, and the line under them.
[[nodiscard]] QString themeHeading();
[[nodiscard]] QString themeExplanation();

// The stored theme; `system` when none is stored or the stored text names no theme.
[[nodiscard]] AppTheme storedTheme(const Preferences& preferences);
void storeTheme(Preferences& preferences, AppTheme theme);

}  // namespace vantello::app
