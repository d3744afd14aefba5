// The desktop application's entry: set up the interface language and open the main window.

#include "app/model/OrderlyQuit.hpp"
#include "app/screens/MainWindow.hpp"
#include "app/settings/Language.hpp"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>
#include <cstring>

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
    vantello::app::MainWindow window;
    window.show();
    return QApplication::exec();
}
