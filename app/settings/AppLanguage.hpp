#pragma once
// The interface language the user chooses, kept under the preference "language": absent to
// follow the system, "it" or "en". A change takes effect at the next start.

#include "app/settings/Preferences.hpp"

#include <QString>
#include <QVariant>

#include <array>

namespace vantello::app {

enum class AppLanguage { system, italian, english };

inline constexpr std::array<AppLanguage, 3> allLanguages = {
    AppLanguage::system, AppLanguage::italian, AppLanguage::english,
};

// The choice a stored value means: its text, or the first entry of a stored list, beginning with
// "en" is English ("en-GB" included), with "it" Italian; anything else, or nothing, the system's.
[[nodiscard]] AppLanguage appLanguageFor(const QVariant& stored);

[[nodiscard]] AppLanguage storedAppLanguage(const Preferences& preferences);
// `system` removes the preference rather than storing an empty value.
void storeAppLanguage(Preferences& preferences, AppLanguage language);

// "Automatico (lingua del sistema)", "Italiano", "English".
[[nodiscard]] QString label(AppLanguage language);
// "Lingua dell'app".
[[nodiscard]] QString languageHeading();
// Shown once the choice has changed, beside the button that restarts the application.
[[nodiscard]] QString languageRestartMessage();
[[nodiscard]] QString restartButtonLabel();

}  // namespace vantello::app
