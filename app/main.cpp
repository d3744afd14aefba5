// The desktop application's entry: set up the interface language and open the main window.

#include "app/model/OrderlyQuit.hpp"
#include "app/model/ProfilesController.hpp"
#include "app/model/RatesKeeper.hpp"
#include "app/notifications/NotificationService.hpp"
#include "app/screens/MainWindow.hpp"
#include "app/settings/Language.hpp"
#include "app/settings/Preferences.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "app/settings/AppTheme.hpp"
#include "core/files/DataFolder.hpp"
#include "core/files/Trash.hpp"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>

namespace {

// The user's data folder, or nothing when there is none to be found (the model then says so).
std::optional<std::filesystem::path> rootDataFolder() {
    try {
        return vantello::dataFolder();
    } catch (const vantello::DataFolderError&) {
        return std::nullopt;
    }
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

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vantello"));
    QApplication::setOrganizationName(QStringLiteral("Vantello"));
    QApplication::setApplicationVersion(QStringLiteral(VANTELLO_VERSION));

    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Vantello"));
    options.addHelpOption();
    options.process(application);

    vantello::app::installInterfaceLanguage(application);
    // SIGTERM, SIGINT, SIGHUP and the session's end quit through the event loop, so that the
    // ledger writers are flushed before the process ends.
    vantello::app::OrderlyQuit orderlyQuit(application);

    vantello::app::Preferences preferences;
    vantello::app::NotificationService notifications;
    vantello::app::applyTheme(vantello::app::storedTheme(preferences));
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
        .notifications = &notifications,
        .rates = rates ? &*rates : nullptr,
    });
    orderlyQuit.beforeQuitting([&profiles] { profiles.flush(); });
    vantello::app::MainWindow window;
    window.show();
    return QApplication::exec();
}
