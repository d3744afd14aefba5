// The theme, its colours and the palette of the running application; the interface language as
// stored; the restart that waits for the old process.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "app/settings/AppLanguage.hpp"
#include "app/settings/AppTheme.hpp"
#include "app/settings/Restart.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "app/settings/ThemePalette.hpp"

using namespace vantello::app;

class AppearanceTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    std::unique_ptr<Preferences> preferences_;

private Q_SLOTS:
    void init() { preferences_ = std::make_unique<Preferences>(folder_.filePath(QStringLiteral("settings.conf"))); }

    void languageIsReadFromTheFirstEntryOfTheStoredValue() {
        const auto stored = [](QVariant value) { return appLanguageFor(value); };
        QCOMPARE(stored(QStringLiteral("en-GB")), AppLanguage::english);
        QCOMPARE(stored(QStringLiteral("it_IT")), AppLanguage::italian);
        QCOMPARE(stored(QStringLiteral("fr")), AppLanguage::system);
        QCOMPARE(stored(QStringList{QStringLiteral("fr"), QStringLiteral("en")}), AppLanguage::system);
        QCOMPARE(stored(QStringList{QStringLiteral("en-US"), QStringLiteral("it")}), AppLanguage::english);
        QCOMPARE(stored(QStringList{}), AppLanguage::system);
        QCOMPARE(stored(QVariant()), AppLanguage::system);
    }

    void choosingTheSystemLanguageRemovesTheKey() {
        storeAppLanguage(*preferences_, AppLanguage::english);
        QCOMPARE(preferences_->value(QStringLiteral("language")).toString(), QStringLiteral("en"));
        storeAppLanguage(*preferences_, AppLanguage::italian);
        QCOMPARE(storedAppLanguage(*preferences_), AppLanguage::italian);
        storeAppLanguage(*preferences_, AppLanguage::system);
        preferences_->sync();
        QVERIFY(!QSettings(folder_.filePath(QStringLiteral("settings.conf")), QSettings::IniFormat)
                     .contains(QStringLiteral("language")));
        QCOMPARE(storedAppLanguage(*preferences_), AppLanguage::system);
    }

    void themeIsStoredAsItsRawValue() {
        QCOMPARE(storedTheme(*preferences_), AppTheme::system);
        storeTheme(*preferences_, AppTheme::solarizedDark);
        QCOMPARE(preferences_->value(QStringLiteral("appTheme")).toString(), QStringLiteral("solarizedDark"));
        QCOMPARE(storedTheme(*preferences_), AppTheme::solarizedDark);
        preferences_->setValue(QStringLiteral("appTheme"), QStringLiteral("sepia"));
        QCOMPARE(storedTheme(*preferences_), AppTheme::system);
    }

    void customPalettesHaveTheirExactColours() {
        const ThemePalette light = ThemePalette::solarizedLight();
        QCOMPARE(light.windowBackground, QColor(QStringLiteral("#EEE8D5")));
        QCOMPARE(light.cardBackground, QColor(QStringLiteral("#FDF6E3")));
        QCOMPARE(light.separator.rgb(), QColor(QStringLiteral("#93A1A1")).rgb());
        QCOMPARE(qRound(light.separator.alphaF() * 100), 50);
        QCOMPARE(light.primaryText, QColor(QStringLiteral("#073642")));
        QCOMPARE(light.accent, QColor(QStringLiteral("#268BD2")));
        QCOMPARE(light.income, QColor(QStringLiteral("#5F6F00")));
        QCOMPARE(light.expense, QColor(QStringLiteral("#B8281F")));

        const ThemePalette dark = ThemePalette::solarizedDark();
        QCOMPARE(dark.windowBackground, QColor(QStringLiteral("#002B36")));
        QCOMPARE(dark.cardBackground, QColor(QStringLiteral("#073642")));
        QCOMPARE(dark.separator.rgb(), QColor(QStringLiteral("#586E75")).rgb());
        QCOMPARE(qRound(dark.separator.alphaF() * 100), 60);
        QCOMPARE(dark.primaryText, QColor(QStringLiteral("#93A1A1")));
        QCOMPARE(dark.accent, QColor(QStringLiteral("#268BD2")));
        QCOMPARE(dark.income, QColor(QStringLiteral("#A3B81C")));
        QCOMPARE(dark.expense, QColor(QStringLiteral("#F47A70")));

        QVERIFY(light.isCustom && dark.isCustom);
        QVERIFY(!themePalette(AppTheme::light, {}).isCustom);
        QVERIFY(themePalette(AppTheme::light, {}) != themePalette(AppTheme::dark, {}));
    }

    void applyingAThemeChangesTheApplicationPaletteAndSystemGivesItBack() {
        const QColor desktopWindow = QGuiApplication::palette().color(QPalette::Window);

        const ThemePalette dark = applyTheme(AppTheme::dark);
        QCOMPARE(QGuiApplication::palette().color(QPalette::Window), standardDarkPalette().color(QPalette::Window));
        QCOMPARE(dark.windowBackground, standardDarkPalette().color(QPalette::Window));
        QVERIFY(dark.primaryText.lightnessF() > dark.windowBackground.lightnessF());

        QCOMPARE(applyTheme(AppTheme::solarizedLight), ThemePalette::solarizedLight());
        QCOMPARE(QGuiApplication::palette().color(QPalette::Window), QColor(QStringLiteral("#EEE8D5")));
        QCOMPARE(QGuiApplication::palette().color(QPalette::Text), QColor(QStringLiteral("#073642")));

        const ThemePalette system = applyTheme(AppTheme::system);
        QCOMPARE(QGuiApplication::palette().color(QPalette::Window), desktopWindow);
        QCOMPARE(system, ThemePalette::fromQtPalette(QGuiApplication::palette()));
    }

    void restartStartsTheNewCopyOnlyOnceTheOldProcessHasEnded() {
        QProcess old;
        old.start(QStringLiteral("sleep"), {QStringLiteral("0.5")});
        QVERIFY(old.waitForStarted());
        const QString started = folder_.filePath(QStringLiteral("started"));
        QVERIFY(startAfterProcessEnds(old.processId(), QStringLiteral("touch"), {started}));
        QTest::qWait(200);
        QVERIFY(!QFile::exists(started));
        QVERIFY(old.waitForFinished());
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(started), 5'000);
    }
};

QTEST_MAIN(AppearanceTest)
#include "AppearanceTest.moc"
