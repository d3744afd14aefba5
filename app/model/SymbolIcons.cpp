#include "app/model/SymbolIcons.hpp"

#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <utility>

namespace vantello::app {

namespace {

// Symbol names of the ledger (those of the built-in categories and accounts first, then the
// ones the pickers offer) and the freedesktop icon name that shows the same thing, taken from
// Adwaita where the standard list of icon names has none; a name starting with ":/" is one of
// the application's own pictures.
constexpr std::pair<std::string_view, const char*> table[] = {
    // Icon themes have no shopping cart; ours is bundled.
    {"cart", ":/icons/cart-symbolic.svg"},
    {"house", "go-home"},
    {"bolt", "battery-full-charging"},
    {"car", "emoji-travel"},
    {"fork.knife", "emoji-food"},
    {"theatermasks", "applications-games"},
    {"repeat", "media-playlist-repeat"},
    {"cross.case", "applications-science"},
    {"tshirt", "emoji-people"},
    {"ellipsis.circle", "view-more"},
    {"briefcase", "applications-office"},
    {"briefcase.fill", "applications-office"},
    {"person.badge.clock", "appointment-soon"},
    {"plus.circle", "list-add"},
    {"arrow.left.arrow.right", "media-playlist-shuffle"},
    {"banknote", "accessories-calculator"},
    {"creditcard", "auth-smartcard"},
    {"building.columns", "user-home"},
    {"wallet.pass", "emblem-documents"},
    {"eurosign.circle", "accessories-calculator"},
    {"gift", "emoji-activities"},
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
    {"fuelpump", "emoji-travel"},
    {"bus", "emoji-travel"},
    {"tram", "emoji-travel"},
    {"bicycle", "emoji-travel"},
    {"stethoscope", "applications-science"},
    {"pills", "applications-science"},
    {"figure.walk", "emoji-people"},
    {"person.2", "system-users"},
    {"gearshape", "preferences-system"},
    {"paintpalette", "preferences-desktop-theme"},
    {"externaldrive.badge.timemachine", "drive-harddisk"},
    {"arrow.clockwise", "view-refresh"},
    // The full-colour bell exists only as a large legacy picture; the symbolic one reads at any size.
    {"bell", "preferences-system-notifications-symbolic"},
    {"list.bullet", "view-list"},
    {"chart.pie", "x-office-spreadsheet"},
    {"gauge", "accessories-calculator"},
    {"magnifyingglass", "edit-find"},
    {"target", "emblem-default"},
    {"wand", "applications-engineering"},
    {"tag", "bookmark-new"},
    {"line.3.horizontal.decrease", "view-sort-ascending"},
    {"paperclip", "mail-attachment"},
    {"person", "avatar-default"},
};

const QIcon& fallbackIcon() {
    static const QIcon icon(QStringLiteral(":/icons/symbol-fallback.svg"));
    return icon;
}

QIcon tinted(const QIcon& icon, const QColor& colour) {
    if (icon.isNull()) return icon;
    QIcon result;
    for (const int size : {16, 20, 24, 32, 48, 64}) {
        QPixmap pixmap = icon.pixmap(size, size);
        QPainter painter(&pixmap);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(pixmap.rect(), colour);
        painter.end();
        result.addPixmap(pixmap);
    }
    return result;
}

}  // namespace

void useDesktopIconTheme() {
    if (!QIcon::themeName().isEmpty() && QIcon::themeName() != QLatin1String("hicolor")) return;
    QStringList paths = QIcon::themeSearchPaths();
    QString dataFolders = qEnvironmentVariable("XDG_DATA_DIRS");
    if (dataFolders.isEmpty()) dataFolders = QStringLiteral("/usr/local/share:/usr/share");
    for (const QString& folder : dataFolders.split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        const QString icons = folder + QStringLiteral("/icons");
        if (!paths.contains(icons)) paths.append(icons);
    }
    QIcon::setThemeSearchPaths(paths);
    QIcon::setThemeName(QStringLiteral("Adwaita"));
}

QString themeIconName(std::string_view symbolName) {
    for (const auto& [symbol, iconName] : table) {
        if (symbol == symbolName) return QString::fromLatin1(iconName);
    }
    return {};
}

QIcon symbolIcon(std::string_view symbolName) {
    static QHash<QString, QIcon> made;
    // Symbolic icons are drawn in the text colour, so the key holds it: a change of theme makes
    // them anew.
    const QColor textColour = QGuiApplication::palette().color(QPalette::WindowText);
    const QString key = QString::fromUtf8(symbolName.data(), static_cast<qsizetype>(symbolName.size())) +
                        QLatin1Char('/') + textColour.name();
    if (const auto found = made.constFind(key); found != made.constEnd()) return *found;
    const QString iconName = themeIconName(symbolName);
    QIcon icon;
    if (iconName.startsWith(QLatin1String(":/"))) {
        icon = tinted(QIcon(iconName), textColour);
    } else if (iconName.endsWith(QLatin1String("-symbolic"))) {
        icon = tinted(QIcon::fromTheme(iconName), textColour);
    } else if (!iconName.isEmpty()) {
        icon = QIcon::fromTheme(iconName);
        // Themes such as Adwaita keep many names only in their symbolic form, drawn in one grey
        // that a dark palette would hide.
        if (icon.isNull()) icon = tinted(QIcon::fromTheme(iconName + QStringLiteral("-symbolic")), textColour);
    }
    if (icon.isNull()) icon = fallbackIcon();
    made.insert(key, icon);
    return icon;
}

}  // namespace vantello::app
