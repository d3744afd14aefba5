#include "app/settings/AppTheme.hpp"

#include "core/base/Localization.hpp"

#include <string_view>

namespace vantello::app {

namespace {

const QString themeKey = QStringLiteral("appTheme");

struct ThemeNames {
    const char* raw;
    std::string_view label;
};

ThemeNames namesOf(AppTheme theme) {
    switch (theme) {
        case AppTheme::system: return {"system", L10n::key("Automatico")};
        case AppTheme::light: return {"light", L10n::key("Chiaro")};
        case AppTheme::dark: return {"dark", L10n::key("Scuro")};
        case AppTheme::solarizedLight: return {"solarizedLight", L10n::key("Solarized chiaro")};
        case AppTheme::solarizedDark: return {"solarizedDark", L10n::key("Solarized scuro")};
    }
    return namesOf(AppTheme::system);
}

// The interface-language text of an Italian key.
QString text(std::string_view italianKey) { return QString::fromStdString(L10n::tr(italianKey)); }

}  // namespace

QString rawValue(AppTheme theme) { return QString::fromLatin1(namesOf(theme).raw); }

std::optional<AppTheme> themeFromRawValue(const QString& raw) {
    for (const AppTheme theme : allThemes) {
        if (raw == rawValue(theme)) return theme;
    }
    return std::nullopt;
}

QString label(AppTheme theme) { return text(namesOf(theme).label); }

QString themeHeading() { return text("Tema"); }

QString themeExplanation() {
    return text("Il tema vale per tutte le finestre di Vantello. «Automatico» segue l'aspetto scelto nelle "
                "impostazioni del sistema.");
}

AppTheme storedTheme(const Preferences& preferences) {
    return themeFromRawValue(preferences.value(themeKey).toString()).value_or(AppTheme::system);
}

void storeTheme(Preferences& preferences, AppTheme theme) { preferences.setValue(themeKey, rawValue(theme)); }

}  // namespace vantello::app
