#pragma once
// The page of a screen this version does not have yet: its title and one sentence that says
// so, so that the sidebar can already list every screen.

#include <QWidget>

namespace vantello::app {

struct SidebarItem;

class PendingScreen : public QWidget {
    Q_OBJECT
public:
    explicit PendingScreen(const SidebarItem& item, QWidget* parent = nullptr);
};

}  // namespace vantello::app
