#pragma once
// Whether the quick-add icon sits in the desktop's tray (preference "showsMenuBarExtra", on
// unless turned off), with the texts of its switch.

#include "app/settings/Preferences.hpp"

#include <QString>

namespace vantello::app {

[[nodiscard]] bool showsQuickAddIcon(const Preferences& preferences);
void setShowsQuickAddIcon(Preferences& preferences, bool shows);

// "Aggiunta rapida nella barra dei menu" and the line explaining it.
[[nodiscard]] QString quickAddSwitchLabel();
[[nodiscard]] QString quickAddExplanation();

}  // namespace vantello::app
