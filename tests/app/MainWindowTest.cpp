// The application opens its window under the offscreen platform and speaks the chosen language.

#include "app/screens/MainWindow.hpp"
#include "app/settings/Language.hpp"
#include "core/base/Localization.hpp"

#include <QApplication>
#include <QLabel>
#include <QSettings>
#include <QtTest>

using vantello::app::InterfaceLanguage;

class MainWindowTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QApplication::setOrganizationName(QStringLiteral("Vantello"));
        QApplication::setApplicationName(QStringLiteral("Vantello"));
    }

    void opensTitledWindowInItalian() {
        QSettings().remove(QStringLiteral("language"));
        vantello::app::installInterfaceLanguage(*QCoreApplication::instance());
        vantello::app::MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.windowTitle(), QStringLiteral("Vantello"));
        auto* welcome = window.findChild<QLabel*>(QStringLiteral("welcomeLabel"));
        QVERIFY(welcome);
        QCOMPARE(welcome->text(), QStringLiteral("Benvenuto in Vantello"));
    }

    void englishPreferenceTranslatesCoreTexts() {
        QSettings().setValue(QStringLiteral("language"), QStringLiteral("en"));
        QCOMPARE(vantello::app::installInterfaceLanguage(*QCoreApplication::instance()),
                 InterfaceLanguage::english);
        QCOMPARE(QString::fromStdString(vantello::L10n::tr("Benvenuto in Vantello")),
                 QStringLiteral("Welcome to Vantello"));
        QSettings().remove(QStringLiteral("language"));
    }

    void languageFollowsPreferenceThenSystem() {
        using vantello::app::languageFor;
        QCOMPARE(languageFor({}, QStringLiteral("C")), InterfaceLanguage::italian);
        QCOMPARE(languageFor({}, QStringLiteral("en_GB")), InterfaceLanguage::english);
        QCOMPARE(languageFor(QStringLiteral("it"), QStringLiteral("en_US")), InterfaceLanguage::italian);
        QCOMPARE(languageFor(QStringLiteral("en"), QStringLiteral("it_IT")), InterfaceLanguage::english);
    }
};

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
