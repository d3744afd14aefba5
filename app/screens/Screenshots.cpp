#include "app/screens/Screenshots.hpp"

#include "app/model/SidebarItems.hpp"
#include "app/screens/ImportSheet.hpp"
#include "app/screens/MainWindow.hpp"
#include "app/screens/QuickAddPanel.hpp"
#include "app/screens/SettingsWindow.hpp"
#include "app/screens/TransactionEditor.hpp"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QThread>

namespace vantello::app {

namespace {

// Lets layouts settle, pending paints run and short timers fire (the search waits a moment
// after it is shown) before a picture is taken.
void settle() {
    QElapsedTimer waited;
    waited.start();
    while (waited.elapsed() < 250) {
        QApplication::processEvents(QEventLoop::AllEvents, 50);
        QThread::msleep(10);
    }
}

class Camera {
public:
    Camera(const QString& folder, QString suffix) : folder_(folder), suffix_(std::move(suffix)) {}
    void take(QWidget& widget, const QString& name) {
        settle();
        if (!widget.grab().save(folder_.filePath(name + QLatin1Char('-') + suffix_ + QStringLiteral(".png")))) ++failures_;
    }
    [[nodiscard]] int failures() const { return failures_; }

private:
    QDir folder_;
    QString suffix_;
    int failures_ = 0;
};

// A short statement in the shape Italian banks write, for the import sheet's picture.
constexpr const char* statementText =
    "Data operazione;Data valuta;Descrizione;Importo\n"
    "03/03/2026;03/03/2026;PAGAMENTO POS ESSELUNGA MILANO;-54,30\n"
    "05/03/2026;05/03/2026;BONIFICO STIPENDIO ACME SRL;1.850,00\n"
    "07/03/2026;07/03/2026;ADDEBITO SDD ENEL ENERGIA;-72,15\n"
    "09/03/2026;09/03/2026;PAGAMENTO POS BAR CENTRALE;-3,20\n";

}  // namespace

int takeScreenshots(MainWindow& window, ProfilesController& profiles, Preferences& preferences,
                    const QString& folder, const QString& suffix) {
    QDir().mkpath(folder);
    Camera camera(folder, suffix);
    LedgerViewModel& model = profiles.model();
    model.enterDemo();
    window.resize(1280, 800);
    window.show();

    for (const SidebarItem& item : sidebarItems()) {
        window.showScreen(item.rawValue);
        camera.take(window, item.rawValue);
    }
    window.showScreen(QStringLiteral("movements"));

    TransactionEditor editor(model, model.newDraft(TransactionKind::expense), &window);
    editor.show();
    camera.take(editor, QStringLiteral("editor"));
    editor.reject();

    QTemporaryDir scratch;
    const QString statement = scratch.filePath(QStringLiteral("estratto-conto.csv"));
    QFile file(statement);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(statementText);
        file.close();
        model.openImportFile(std::filesystem::path(statement.toStdString()));
        if (model.importSession()) {
            ImportSheet sheet(model, &window);
            sheet.show();
            camera.take(sheet, QStringLiteral("import"));
            model.cancelImport();
        }
    }

    SettingsWindow settings(profiles, preferences, &window);
    settings.show();
    if (auto* tabs = settings.findChild<QTabWidget*>()) {
        for (int index = 0; index < tabs->count(); ++index) {
            tabs->setCurrentIndex(index);
            camera.take(settings, QStringLiteral("settings-%1").arg(index + 1));
        }
    }
    settings.close();

    QuickAddPanel panel(profiles);
    panel.show();
    camera.take(panel, QStringLiteral("quick-add"));
    return camera.failures();
}

}  // namespace vantello::app
