// The main window on the demo data with a frozen day: every screen of the sidebar opens, the
// menu's shortcuts reach the model (months, undo), a deletion can be taken back from the message
// bar, a profile switch rebuilds the screens on the new data, and the window speaks the chosen
// language.

#include "app/model/SearchActions.hpp"
#include "app/model/SidebarItems.hpp"
#include "app/screens/MainWindow.hpp"
#include "app/screens/MovementsScreen.hpp"
#include "app/screens/SearchScreen.hpp"
#include "app/screens/TransactionEditor.hpp"
#include "app/settings/Language.hpp"
#include "core/base/Localization.hpp"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

using namespace vantello;
using namespace vantello::app;

namespace {

const Calendar rome("Europe/Rome");
Instant frozenNow() { return *rome.date({2026, 3, 18}, 12); }

// A temporary data folder with its own preferences, and the controller of the profile in use.
struct Desk {
    QTemporaryDir home;
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};
    ProfilesController profiles{{std::filesystem::path(home.path().toStdString()) / "Vantello", rome, frozenNow,
                                 &preferences, [](const std::filesystem::path&) {}, nullptr, nullptr}};
};

void press(QWidget& window, const QKeySequence& keys) {
    QTest::keySequence(&window, keys);
    QApplication::processEvents();
}

}  // namespace

class MainWindowTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QApplication::setOrganizationName(QStringLiteral("Vantello"));
        QApplication::setApplicationName(QStringLiteral("Vantello"));
        QSettings().remove(QStringLiteral("language"));
        installInterfaceLanguage(*QCoreApplication::instance());
    }

    void everyScreenOfTheSidebarOpensAndTheChoiceIsRemembered() {
        Desk desk;
        desk.profiles.model().enterDemo();
        MainWindow window(desk.profiles, desk.preferences);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(qobject_cast<MovementsScreen*>(window.currentScreen()));
        for (const SidebarItem& item : sidebarItems()) {
            window.showScreen(item.rawValue);
            QVERIFY2(window.currentScreen() && window.currentScreen()->isVisible(), qPrintable(item.rawValue));
        }
        QCOMPARE(desk.preferences.value(QStringLiteral("sidebarSelection")).toString(), sidebarItems().back().rawValue);
        // A new window (the next start) opens on the screen last shown.
        MainWindow next(desk.profiles, desk.preferences);
        QCOMPARE(next.currentScreen()->objectName(), window.currentScreen()->objectName());
    }

    void savedSearchesSitUnderSearchAndOpenIt() {
        Desk desk;
        desk.profiles.model().enterDemo();
        MainWindow window(desk.profiles, desk.preferences);
        window.show();
        TransactionFilter filter;
        filter.text = "Esselunga";
        QVERIFY(!saveSearchAs(desk.profiles.model(), QStringLiteral("Spesa Esselunga"), filter));
        auto* sidebar = window.findChild<QTreeWidget*>(QStringLiteral("sidebar"));
        const auto found = sidebar->findItems(QStringLiteral("Spesa Esselunga"), Qt::MatchExactly | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.front()->parent()->text(0), QString::fromStdString(L10n::tr("Cerca")));
        sidebar->setCurrentItem(found.front());
        QVERIFY(qobject_cast<SearchScreen*>(window.currentScreen()));
        QCOMPARE(sidebar->currentItem(), found.front());
        deleteSearch(desk.profiles.model(), desk.profiles.model().ledger().data().savedSearches.front().id);
        QVERIFY(sidebar->findItems(QStringLiteral("Spesa Esselunga"), Qt::MatchExactly | Qt::MatchRecursive).isEmpty());
    }

    void shortcutsMoveTheMonthAndOpenTheEditor() {
        Desk desk;
        desk.profiles.model().enterDemo();
        MainWindow window(desk.profiles, desk.preferences);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const Instant march = desk.profiles.model().selectedMonth();
        press(window, QKeySequence(Qt::ALT | Qt::Key_Left));
        QVERIFY(desk.profiles.model().selectedMonth() < march);
        press(window, QKeySequence(Qt::ALT | Qt::Key_Right));
        QCOMPARE(desk.profiles.model().selectedMonth(), march);

        press(window, QKeySequence(Qt::CTRL | Qt::Key_N));
        auto* editor = window.findChild<TransactionEditor*>();
        QVERIFY(editor && editor->isVisible());
        QVERIFY(editor->draft().isNew);
        editor->reject();
    }

    void deletionIsTakenBackFromTheMessageBar() {
        Desk desk;
        LedgerViewModel& model = desk.profiles.model();
        model.enterDemo();
        MainWindow window(desk.profiles, desk.preferences);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* screen = qobject_cast<MovementsScreen*>(window.currentScreen());
        QVERIFY(screen);
        auto* list = screen->findChild<QAbstractItemView*>(QStringLiteral("movementsList"));
        QVERIFY(list);
        list->setFocus();
        // The first movement of the month (the rows start with a day's heading).
        for (int row = 0; row < list->model()->rowCount() && screen->selectedTransactionIDs().empty(); ++row) {
            list->selectionModel()->select(list->model()->index(row, 0), QItemSelectionModel::ClearAndSelect);
        }
        QCOMPARE(screen->selectedTransactionIDs().size(), std::size_t(1));
        const Uuid chosen = screen->selectedTransactionIDs().front();
        const auto count = model.ledger().transactions().size();

        press(window, QKeySequence(QKeySequence::Delete));
        QCOMPARE(model.ledger().transactions().size(), count - 1);
        QVERIFY(!window.messageText().isEmpty());
        QVERIFY(model.undoTitle().contains(QString::fromStdString(L10n::tr("Elimina movimento"))));

        press(window, QKeySequence(Qt::CTRL | Qt::Key_Z));
        QCOMPARE(model.ledger().transactions().size(), count);
        QVERIFY(model.ledger().transaction(chosen));
        press(window, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
        QVERIFY(!model.ledger().transaction(chosen));
    }

    void switchingProfileShowsItsOwnData() {
        Desk desk;
        QVERIFY(!desk.profiles.addProfile(ManagedProfile::Kind::household, {}, QStringLiteral("Rossi")));
        MainWindow window(desk.profiles, desk.preferences);
        window.show();
        auto* choice = window.findChild<QComboBox*>(QStringLiteral("profileChoice"));
        QVERIFY(choice && choice->isVisible());
        QCOMPARE(choice->count(), 2);
        const QWidget* before = window.currentScreen();
        choice->setCurrentIndex(1);
        Q_EMIT choice->activated(1);
        QVERIFY(desk.profiles.model().profile().has_value());
        QVERIFY(window.windowTitle().contains(QStringLiteral("Rossi")));
        QVERIFY(window.currentScreen() != before);
    }

    void englishPreferenceTranslatesTheTexts() {
        QSettings().setValue(QStringLiteral("language"), QStringLiteral("en"));
        QCOMPARE(installInterfaceLanguage(*QCoreApplication::instance()), InterfaceLanguage::english);
        QCOMPARE(QString::fromStdString(L10n::tr("Esci dalla prova")), QStringLiteral("Leave the demo"));
        QCOMPARE(QString::fromStdString(interfaceLocaleName()), QStringLiteral("en_US"));
        QSettings().remove(QStringLiteral("language"));
        QCOMPARE(installInterfaceLanguage(*QCoreApplication::instance(), InterfaceLanguage::italian),
                 InterfaceLanguage::italian);
    }

    void languageFollowsPreferenceThenSystem() {
        QCOMPARE(languageFor({}, QStringLiteral("C")), InterfaceLanguage::italian);
        QCOMPARE(languageFor({}, QStringLiteral("en_GB")), InterfaceLanguage::english);
        QCOMPARE(languageFor(QStringLiteral("it"), QStringLiteral("en_US")), InterfaceLanguage::italian);
        QCOMPARE(languageFor(QStringLiteral("en"), QStringLiteral("it_IT")), InterfaceLanguage::english);
    }
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
