#include "app/screens/ScreenFactory.hpp"

#include "app/screens/AccountsScreen.hpp"
#include "app/screens/AlertsScreen.hpp"
#include "app/screens/BudgetsScreen.hpp"
#include "app/screens/CategoriesScreen.hpp"
#include "app/screens/ChartsScreen.hpp"
#include "app/screens/GoalsScreen.hpp"
#include "app/screens/RecurringScreen.hpp"
#include "app/screens/RulesScreen.hpp"
#include "app/screens/ScenariosScreen.hpp"
#include "app/screens/SearchScreen.hpp"
#include "app/screens/SharedScreen.hpp"
#include "app/screens/SubscriptionsScreen.hpp"
#include "app/screens/WealthScreen.hpp"
#include "app/screens/WorkScreen.hpp"

#include <functional>
#include <map>

namespace vantello::app {

namespace {

using Maker = std::function<QWidget*(LedgerViewModel&, QWidget*)>;

template <typename Screen>
Maker maker() {
    return [](LedgerViewModel& model, QWidget* parent) { return new Screen(model, parent); };
}

const std::map<QString, Maker>& makers() {
    static const std::map<QString, Maker> all{
        {QStringLiteral("charts"), maker<ChartsScreen>()},
        {QStringLiteral("budgets"), maker<BudgetsScreen>()},
        {QStringLiteral("recurring"), maker<RecurringScreen>()},
        {QStringLiteral("rules"), maker<RulesScreen>()},
        {QStringLiteral("work"), maker<WorkScreen>()},
        {QStringLiteral("wealth"), maker<WealthScreen>()},
        {QStringLiteral("shared"), maker<SharedScreen>()},
        {QStringLiteral("search"), maker<SearchScreen>()},
        {QStringLiteral("scenarios"), maker<ScenariosScreen>()},
        {QStringLiteral("goals"), maker<GoalsScreen>()},
        {QStringLiteral("subscriptions"), maker<SubscriptionsScreen>()},
        {QStringLiteral("alerts"), maker<AlertsScreen>()},
        {QStringLiteral("categories"), maker<CategoriesScreen>()},
        {QStringLiteral("accounts"), maker<AccountsScreen>()},
    };
    return all;
}

}  // namespace

QWidget* makeScreen(const SidebarItem& item, LedgerViewModel& model, QWidget* parent) {
    const auto found = makers().find(item.rawValue);
    // Every item of the sidebar has its screen; an empty page would only hide a missing entry.
    QWidget* screen = found == makers().end() ? new QWidget(parent) : found->second(model, parent);
    screen->setObjectName(item.rawValue + QStringLiteral("Screen"));
    return screen;
}

}  // namespace vantello::app
