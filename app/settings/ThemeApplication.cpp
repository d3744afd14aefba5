#include "app/settings/ThemeApplication.hpp"

#include <QGuiApplication>
#include <QStyleHints>
#include <QtGlobal>

namespace vantello::app {

namespace {

QPalette qtPaletteFor(AppTheme theme) {
    switch (theme) {
        case AppTheme::system: break;
        case AppTheme::light: return standardLightPalette();
        case AppTheme::dark: return standardDarkPalette();
        case AppTheme::solarizedLight: return qtPaletteOf(ThemePalette::solarizedLight());
        case AppTheme::solarizedDark: return qtPaletteOf(ThemePalette::solarizedDark());
    }
    // A palette that sets no role resets the application's to the desktop's.
    return QPalette();
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
Qt::ColorScheme colourSchemeFor(AppTheme theme) {
    switch (theme) {
        case AppTheme::system: return Qt::ColorScheme::Unknown;
        case AppTheme::light:
        case AppTheme::solarizedLight: return Qt::ColorScheme::Light;
        case AppTheme::dark:
        case AppTheme::solarizedDark: return Qt::ColorScheme::Dark;
    }
    return Qt::ColorScheme::Unknown;
}
#endif

ThemePalette& appliedPalette() {
    static ThemePalette palette = ThemePalette::fromQtPalette(QGuiApplication::palette());
    return palette;
}

}  // namespace

const ThemePalette& currentPalette() { return appliedPalette(); }

ThemePalette applyTheme(AppTheme theme) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    // Unknown hands the choice back to the desktop.
    QGuiApplication::styleHints()->setColorScheme(colourSchemeFor(theme));
#endif
    QGuiApplication::setPalette(qtPaletteFor(theme));
    appliedPalette() = themePalette(theme, QGuiApplication::palette());
    return appliedPalette();
}

}  // namespace vantello::app
