#pragma once
// The seven colours every screen draws with, for each theme, and the Qt palettes that make the
// standard widgets match them. The standard themes take their colours from a QPalette (the
// desktop's for `system`, a light or a dark one of our own otherwise); the two Solarized themes
// have fixed colours.

#include "app/settings/AppTheme.hpp"

#include <QColor>
#include <QPalette>

namespace vantello::app {

struct ThemePalette {
    QColor windowBackground;
    QColor cardBackground;
    QColor separator;
    QColor primaryText;
    QColor accent;
    QColor income;
    QColor expense;
    bool isCustom = false;

    bool operator==(const ThemePalette&) const = default;

    [[nodiscard]] static ThemePalette solarizedLight();
    [[nodiscard]] static ThemePalette solarizedDark();
    // A standard theme's colours read from a Qt palette; income and expense, which a Qt palette
    // lacks, are a green and a red that read well on its window colour.
    [[nodiscard]] static ThemePalette fromQtPalette(const QPalette& palette);
};

// The Qt palettes of the forced standard themes.
[[nodiscard]] QPalette standardLightPalette();
[[nodiscard]] QPalette standardDarkPalette();

// The Qt palette of a custom theme: window, cards, text and accent in its colours.
[[nodiscard]] QPalette qtPaletteOf(const ThemePalette& colours);

// The colours of `theme`; `system` reads them from `systemPalette`, the palette the desktop
// gives the application.
[[nodiscard]] ThemePalette themePalette(AppTheme theme, const QPalette& systemPalette);

}  // namespace vantello::app
