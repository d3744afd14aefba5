#pragma once
// The icons of the ledger's symbol names ("cart", "house", "fork.knife"…): one table maps each
// name to a freedesktop icon-theme name, and a name the table or the installed theme lacks gets
// the bundled neutral icon, so that no row ever shows an empty icon.

#include <QIcon>
#include <QString>

#include <string_view>

namespace vantello::app {

// The freedesktop icon name for a symbol name; empty when the table has none.
[[nodiscard]] QString themeIconName(std::string_view symbolName);

[[nodiscard]] QIcon symbolIcon(std::string_view symbolName);

// Where the desktop gives no icon theme (a bare window manager, the offscreen platform), looks
// for Adwaita in the freedesktop data folders ($XDG_DATA_DIRS/icons).
void useDesktopIconTheme();

}  // namespace vantello::app
