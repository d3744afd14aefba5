#include "app/screens/MainWindow.hpp"

#include "core/base/Localization.hpp"

#include <QLabel>
#include <QStatusBar>

namespace vantello::app {

namespace {
QString text(std::string_view italianKey) { return QString::fromStdString(L10n::tr(italianKey)); }
}  // namespace

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent) {
    setWindowTitle(QStringLiteral("Vantello"));
    setObjectName(QStringLiteral("mainWindow"));
    resize(1100, 720);

    auto* welcome = new QLabel(text("Benvenuto in Vantello"), this);
    welcome->setObjectName(QStringLiteral("welcomeLabel"));
    welcome->setAlignment(Qt::AlignCenter);
    QFont font = welcome->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    welcome->setFont(font);
    setCentralWidget(welcome);

    statusBar()->showMessage(text("I tuoi dati restano su questo computer."));
}

}  // namespace vantello::app
