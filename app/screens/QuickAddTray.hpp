#pragma once
// The quick-add icon in the desktop's tray, shown while the preference asks for it: a click opens
// the quick-add panel near the pointer, its menu opens the main window or quits. Where the desktop
// has no tray it does nothing.

#include "app/model/ProfilesController.hpp"
#include "app/settings/Preferences.hpp"

#include <QObject>
#include <QPointer>

#include <memory>

class QMenu;
class QSystemTrayIcon;
class QWidget;

namespace vantello::app {

class QuickAddPanel;

class QuickAddTray : public QObject {
    Q_OBJECT
public:
    QuickAddTray(ProfilesController& profiles, Preferences& preferences, QObject* parent = nullptr);
    ~QuickAddTray() override;

    [[nodiscard]] bool isIconVisible() const;

public Q_SLOTS:
    // Shows or hides the tray icon as the preference "showsMenuBarExtra" says (QuickAddSetting).
    void followPreference();
    // Opens the panel near the pointer, or closes it when open.
    void togglePanel();

Q_SIGNALS:
    void showMainWindowRequested();

private:
    void makeIcon();

    ProfilesController& profiles_;
    Preferences& preferences_;
    QSystemTrayIcon* icon_ = nullptr;
    std::unique_ptr<QMenu> menu_;
    std::unique_ptr<QWidget> popup_;  // a window of its own, with the panel
    QuickAddPanel* panel_ = nullptr;
};

}  // namespace vantello::app
