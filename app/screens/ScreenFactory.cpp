#include "app/screens/ScreenFactory.hpp"

#include "app/screens/PendingScreen.hpp"

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
    static const std::map<QString, Maker> all{};
    return all;
}

}  // namespace

QWidget* makeScreen(const SidebarItem& item, LedgerViewModel& model, QWidget* parent) {
    const auto found = makers().find(item.rawValue);
    if (found == makers().end()) return new PendingScreen(item, parent);
    QWidget* screen = found->second(model, parent);
    screen->setObjectName(item.rawValue + QStringLiteral("Screen"));
    return screen;
}

}  // namespace vantello::app
