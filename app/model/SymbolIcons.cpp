#include "app/model/SymbolIcons.hpp"

#include <QHash>

#include <array>
#include <utility>

namespace vantello::app {

namespace {

// Symbol names of the ledger (those of the built-in categories and accounts first, then the
// ones the pickers offer) and the icon of the freedesktop naming specification, or of the
// Adwaita theme where the specification has none, that shows the same thing.
constexpr std::array<std::pair<std::string_view, const char*>, 44> table{{
    {"cart", "emblem-shopping-cart"},
    {"house", "go-home"},
    {"bolt", "battery-full-charging"},
    {"car", "vehicle-car"},
    {"fork.knife", "emoji-food"},
    {"theatermasks", "applications-games"},
    {"repeat", "media-playlist-repeat"},
    {"cross.case", "applications-science"},
    {"tshirt", "emoji-objects"},
    {"ellipsis.circle", "view-more"},
    {"briefcase", "applications-office"},
    {"briefcase.fill", "applications-office"},
    {"person.badge.clock", "appointment-soon"},
    {"plus.circle", "list-add"},
    {"arrow.left.arrow.right", "media-playlist-shuffle"},
    {"banknote", "emblem-money"},
    {"creditcard", "auth-smartcard"},
    {"building.columns", "user-home"},
    {"wallet.pass", "emblem-documents"},
    {"eurosign.circle", "emblem-money"},
    {"gift", "emoji-celebrate"},
    {"airplane", "airplane-mode"},
    {"heart", "emblem-favorite"},
    {"book", "accessories-dictionary"},
    {"graduationcap", "accessories-dictionary"},
    {"pawprint", "emoji-nature"},
    {"gamecontroller", "input-gaming"},
    {"phone", "phone"},
    {"wifi", "network-wireless"},
    {"tv", "video-display"},
    {"music.note", "audio-x-generic"},
    {"fuelpump", "vehicle-car"},
    {"bus", "vehicle-bus"},
    {"tram", "vehicle-bus"},
    {"bicycle", "vehicle-bicycle"},
    {"stethoscope", "applications-science"},
    {"pills", "applications-science"},
    {"figure.walk", "emoji-people"},
    {"person.2", "system-users"},
    {"gearshape", "preferences-system"},
    {"paintpalette", "preferences-desktop-theme"},
    {"externaldrive.badge.timemachine", "drive-harddisk"},
    {"arrow.clockwise", "view-refresh"},
    {"bell", "preferences-system-notifications"},
}};

const QIcon& fallbackIcon() {
    static const QIcon icon(QStringLiteral(":/icons/symbol-fallback.svg"));
    return icon;
}

}  // namespace

QString themeIconName(std::string_view symbolName) {
    for (const auto& [symbol, iconName] : table) {
        if (symbol == symbolName) return QString::fromLatin1(iconName);
    }
    return {};
}

QIcon symbolIcon(std::string_view symbolName) {
    static QHash<QString, QIcon> made;
    const QString key = QString::fromUtf8(symbolName.data(), static_cast<qsizetype>(symbolName.size()));
    if (const auto found = made.constFind(key); found != made.constEnd()) return *found;
    const QString iconName = themeIconName(symbolName);
    QIcon icon = iconName.isEmpty() ? QIcon() : QIcon::fromTheme(iconName);
    if (icon.isNull()) icon = fallbackIcon();
    made.insert(key, icon);
    return icon;
}

}  // namespace vantello::app
