// The desktop application's entry: set up the interface language and the theme, the profile in
// use and its model, and open the main window (or, with --screenshot, render every screen).

#include "app/model/OrderlyQuit.hpp"
#include "app/model/ProfilesController.hpp"
#include "app/model/RatesKeeper.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/notifications/NotificationService.hpp"
#include "app/screens/ContrastStyle.hpp"
#include "app/screens/MainWindow.hpp"
#include "app/screens/QuickAddTray.hpp"
#include "app/screens/Screenshots.hpp"
#include "app/settings/AppTheme.hpp"
#include "app/settings/Language.hpp"
#include "app/settings/Preferences.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/Trash.hpp"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string_view>

namespace {

// The user's data folder, or nothing when there is none to be found (the model then says so).
std::optional<std::filesystem::path> rootDataFolder() {
    try {
        return vantello::dataFolder();
    } catch (const vantello::DataFolderError&) {
        return std::nullopt;
    }
}

// The value after `name` on the command line, read before Qt is started (the scale must be
// known by then).
const char* optionValue(int argc, char* argv[], std::string_view name) {
    for (int i = 1; i + 1 < argc; ++i) {
        if (name == argv[i]) return argv[i + 1];
    }
    return nullptr;
}

}  // namespace

int main(int argc, char* argv[]) {
    // Answered before the window system is touched, so it works without a display.
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--version") == 0 || std::strcmp(argv[i], "-v") == 0) {
            std::printf("Vantello %s\n", VANTELLO_VERSION);
            return 0;
        }
    }
    // Screenshots never touch the user's data or settings: they live in a folder of their own.
    std::optional<QTemporaryDir> screenshotHome;
    if (optionValue(argc, argv, "--screenshot")) {
        if (const char* scale = optionValue(argc, argv, "--scale")) qputenv("QT_SCALE_FACTOR", scale);
        screenshotHome.emplace();
        qputenv("XDG_DATA_HOME", screenshotHome->filePath(QStringLiteral("data")).toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", screenshotHome->filePath(QStringLiteral("config")).toLocal8Bit());
    }

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vantello"));
    QApplication::setOrganizationName(QStringLiteral("Vantello"));
    QApplication::setApplicationVersion(QStringLiteral(VANTELLO_VERSION));

    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Vantello"));
    options.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Render every screen with sample data into FOLDER."),
                                        QStringLiteral("FOLDER"));
    const QCommandLineOption language(QStringLiteral("language"), QStringLiteral("it or en (with --screenshot)."),
                                      QStringLiteral("LANGUAGE"));
    const QCommandLineOption theme(QStringLiteral("theme"),
                                   QStringLiteral("system, light, dark, solarizedLight or solarizedDark (with --screenshot)."),
                                   QStringLiteral("THEME"));
    const QCommandLineOption scale(QStringLiteral("scale"), QStringLiteral("Interface scale (with --screenshot)."),
                                   QStringLiteral("FACTOR"));
    options.addOptions({screenshot, language, theme, scale});
    options.process(application);

    vantello::app::useDesktopIconTheme();
    QApplication::setWindowIcon(vantello::app::symbolIcon("eurosign.circle"));

    std::optional<vantello::app::InterfaceLanguage> forcedLanguage;
    if (options.value(language) == QLatin1String("en")) forcedLanguage = vantello::app::InterfaceLanguage::english;
    if (options.value(language) == QLatin1String("it")) forcedLanguage = vantello::app::InterfaceLanguage::italian;
    vantello::app::installInterfaceLanguage(application, forcedLanguage);
    QApplication::setStyle(new vantello::app::ContrastStyle(QApplication::style()->name()));
    // SIGTERM, SIGINT, SIGHUP and the session's end quit through the event loop, so that the
    // ledger writers are flushed before the process ends.
    vantello::app::OrderlyQuit orderlyQuit(application);

    vantello::app::Preferences preferences;
    vantello::app::NotificationService notifications;
    const auto chosenTheme = options.isSet(theme) ? vantello::app::themeFromRawValue(options.value(theme)) : std::nullopt;
    vantello::app::applyTheme(chosenTheme.value_or(vantello::app::storedTheme(preferences)));
    const vantello::Calendar calendar = vantello::Calendar::current();
    const std::optional<std::filesystem::path> root = rootDataFolder();
    std::optional<vantello::app::RatesKeeper> rates;
    if (root) rates.emplace(*root / vantello::app::RatesKeeper::cacheFileName);
    vantello::app::ProfilesController profiles({
        .rootFolder = root,
        .calendar = calendar,
        .now = {},
        .preferences = &preferences,
        .moveToTrash =
            [&calendar](const std::filesystem::path& folder) {
                vantello::moveToTrash(folder, vantello::homeTrashFolder(), vantello::clockNow(), calendar);
            },
        .notifications = screenshotHome ? nullptr : &notifications,
        .rates = rates ? &*rates : nullptr,
    });
    orderlyQuit.beforeQuitting([&profiles] { profiles.flush(); });
    vantello::app::MainWindow window(profiles, preferences);

    if (options.isSet(screenshot)) {
        const QString suffix = QStringLiteral("%1-%2").arg(
            forcedLanguage == vantello::app::InterfaceLanguage::english ? QStringLiteral("en") : QStringLiteral("it"),
            options.value(theme).isEmpty() ? QStringLiteral("system") : options.value(theme));
        return vantello::app::takeScreenshots(window, profiles, preferences, options.value(screenshot), suffix) == 0 ? 0 : 1;
    }

    vantello::app::QuickAddTray tray(profiles, preferences);
    QObject::connect(&window, &vantello::app::MainWindow::quickAddPreferenceChanged, &tray,
                     &vantello::app::QuickAddTray::followPreference);
    QObject::connect(&tray, &vantello::app::QuickAddTray::showMainWindowRequested, &window, [&window] {
        window.showNormal();
        window.raise();
        window.activateWindow();
    });
    window.show();
    return QApplication::exec();
}
