#pragma once
// Puts a theme into effect for every window of the running application.

#include "app/settings/AppTheme.hpp"
#include "app/settings/ThemePalette.hpp"

namespace vantello::app {

// Sets the application's palette for `theme` (for `system`, hands it back to the desktop, so
// that it follows a later change of the desktop's appearance) and, where Qt can, the colour
// scheme of the style hints. Returns the colours the screens draw with. Needs a
// QGuiApplication (or QApplication).
ThemePalette applyTheme(AppTheme theme);

// The colours of the theme last applied (the desktop's standard ones before any), for the
// screens' own drawing: income and expense amounts, cards, separators.
[[nodiscard]] const ThemePalette& currentPalette();

}  // namespace vantello::app
