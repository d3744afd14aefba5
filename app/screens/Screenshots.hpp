#pragma once
// `vantello --screenshot FOLDER`: the demo data in every screen and sheet of the main window,
// each saved as a PNG named for the screen, the language and the theme, so that the pictures
// can be looked at side by side.

#include "app/model/ProfilesController.hpp"
#include "app/settings/Preferences.hpp"

#include <QString>

namespace vantello::app {

class MainWindow;

// Returns the number of pictures that could not be written (0 on success).
int takeScreenshots(MainWindow& window, ProfilesController& profiles, Preferences& preferences,
                    const QString& folder, const QString& suffix);

}  // namespace vantello::app
