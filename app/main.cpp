// The desktop application's entry: set up the interface language and open the main window.

#include "app/screens/MainWindow.hpp"
#include "app/settings/Language.hpp"

#include <QApplication>
#include <QCommandLineParser>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vantello"));
    QApplication::setOrganizationName(QStringLiteral("Vantello"));
    QApplication::setApplicationVersion(QStringLiteral(VANTELLO_VERSION));

    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Vantello"));
    options.addHelpOption();
    options.addVersionOption();
    options.process(application);

    vantello::app::installInterfaceLanguage(application);
    vantello::app::MainWindow window;
    window.show();
    return QApplication::exec();
}
