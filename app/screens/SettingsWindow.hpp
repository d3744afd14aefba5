#pragma once
// The settings window: four tabs (general, backup, appearance, profiles), opening on the tab
// chosen last. Not modal: the main window stays usable while it is open.

#include "app/model/ProfilesController.hpp"
#include "app/settings/Preferences.hpp"
#include "app/settings/SettingsTab.hpp"

#include <QDialog>

class QTabWidget;

namespace vantello::app {

class SettingsWindow : public QDialog {
    Q_OBJECT
public:
    SettingsWindow(ProfilesController& profiles, Preferences& preferences, QWidget* parent = nullptr);

    [[nodiscard]] SettingsTab currentTab() const;
    void showTab(SettingsTab tab);

Q_SIGNALS:
    // The quick-add switch changed the preference "showsMenuBarExtra": connect it to
    // QuickAddTray::followPreference so that the tray icon follows at once.
    void quickAddPreferenceChanged();

private:
    Preferences& preferences_;
    QTabWidget* tabs_ = nullptr;
};

}  // namespace vantello::app
