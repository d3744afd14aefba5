#include "app/model/SidebarItems.hpp"

#include "app/model/DisplayText.hpp"
#include "core/base/Localization.hpp"

#include <algorithm>

namespace vantello::app {

const std::vector<SidebarItem>& sidebarItems() {
    using enum SidebarGroup;
    static const std::vector<SidebarItem> items{
        {QStringLiteral("movements"), L10n::key("Movimenti"), "list.bullet", everyday},
        {QStringLiteral("charts"), L10n::key("Grafici"), "chart.pie", everyday},
        {QStringLiteral("budgets"), L10n::key("Budget"), "gauge", everyday},
        {QStringLiteral("search"), L10n::key("Cerca"), "magnifyingglass", everyday},
        {QStringLiteral("goals"), L10n::key("Obiettivi"), "target", planning},
        {QStringLiteral("scenarios"), L10n::key("Scenari"), "wand", planning},
        {QStringLiteral("subscriptions"), L10n::key("Abbonamenti"), "repeat", planning},
        {QStringLiteral("wealth"), L10n::key("Patrimonio"), "building.columns", planning},
        {QStringLiteral("alerts"), L10n::key("Avvisi"), "bell", people},
        {QStringLiteral("shared"), L10n::key("Spese condivise"), "person.2", people},
        {QStringLiteral("categories"), L10n::key("Categorie"), "tag", setup},
        {QStringLiteral("accounts"), L10n::key("Conti"), "creditcard", setup},
        {QStringLiteral("recurring"), L10n::key("Movimenti ricorrenti"), "arrow.clockwise", setup},
        {QStringLiteral("rules"), L10n::key("Regole"), "line.3.horizontal.decrease", setup},
        {QStringLiteral("work"), L10n::key("Lavoro"), "briefcase", setup},
    };
    return items;
}

const SidebarItem& sidebarItem(const QString& rawValue) {
    const auto& items = sidebarItems();
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&](const SidebarItem& item) { return item.rawValue == rawValue; });
    return found == items.end() ? items.front() : *found;
}

QString groupLabel(SidebarGroup group) {
    switch (group) {
        case SidebarGroup::everyday: return uiText("Ogni giorno");
        case SidebarGroup::planning: return uiText("Pianificazione");
        case SidebarGroup::people: return uiText("Avvisi e persone");
        case SidebarGroup::setup: return uiText("Impostazioni dei dati");
    }
    return {};
}

}  // namespace vantello::app
