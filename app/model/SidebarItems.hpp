#pragma once
// The screens of the main window as the sidebar lists them: each with the raw text it is
// remembered by ("movements", "charts"…), its label, its icon's symbol name and its group.
// Everyday screens first, then planning, alerts and shared expenses, and the data that is set
// up once.

#include <QString>

#include <string_view>
#include <vector>

namespace vantello::app {

enum class SidebarGroup { everyday, planning, people, setup };

struct SidebarItem {
    QString rawValue;
    std::string_view labelKey;    // the Italian label, translated when shown
    std::string_view symbolName;  // mapped by symbolIcon
    SidebarGroup group;
};

[[nodiscard]] const std::vector<SidebarItem>& sidebarItems();
// The item remembered, or the movements of the month for none or an unknown one.
[[nodiscard]] const SidebarItem& sidebarItem(const QString& rawValue);
// "Ogni giorno", "Pianificazione", "Avvisi e persone", "Impostazioni dei dati".
[[nodiscard]] QString groupLabel(SidebarGroup group);

}  // namespace vantello::app
