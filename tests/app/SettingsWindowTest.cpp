// The settings window on a real data folder with a frozen clock: the remembered tab, themes, the
// backups made and put back, and the managed profiles' form.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QCheckBox>
#include <QStyleOptionButton>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

#include "app/model/ProfilesController.hpp"
#include "app/screens/ContrastStyle.hpp"
#include "app/screens/SettingsAppearanceTab.hpp"
#include "app/screens/SettingsBackupTab.hpp"
#include "app/screens/SettingsProfilesTab.hpp"
#include "app/screens/SettingsWindow.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "app/settings/ThemePalette.hpp"

using namespace vantello;
using namespace vantello::app;

namespace {

const Calendar rome("Europe/Rome");

// A data folder, preferences and the profiles on them, with a frozen clock.
struct Workplace {
    QTemporaryDir home;
    std::filesystem::path root = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};
    std::unique_ptr<ProfilesController> profiles = std::make_unique<ProfilesController>(ProfilesController::Setup{
        root, rome, [] { return *rome.date({2026, 3, 18}, 12); }, &preferences,
        [](const std::filesystem::path& folder) { std::filesystem::remove_all(folder); }, nullptr, nullptr});

    void addMovement(const char* amount) {
        TransactionDraft draft = profiles->model().newDraft(TransactionKind::expense);
        draft.amountText = amount;
        QCOMPARE(profiles->model().saveDraft(draft), std::nullopt);
    }
};

template <typename Widget>
Widget* child(QObject* parent, const char* name) {
    auto* found = parent->findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget %s", name);
    return found;
}

}  // namespace

class SettingsWindowTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void opensOnTheRememberedTabAndRemembersANewChoice() {
        Workplace place;
        storeSettingsTab(place.preferences, SettingsTab::backup);
        {
            SettingsWindow window(*place.profiles, place.preferences);
            QCOMPARE(window.currentTab(), SettingsTab::backup);
            auto* tabs = child<QTabWidget>(&window, "settingsTabs");
            QCOMPARE(tabs->count(), 4);
            QCOMPARE(tabs->tabText(3), QStringLiteral("Gestioni"));
            tabs->setCurrentIndex(3);
        }
        QCOMPARE(storedSettingsTab(place.preferences), SettingsTab::profiles);
        SettingsWindow again(*place.profiles, place.preferences);
        QCOMPARE(again.currentTab(), SettingsTab::profiles);
    }

    void choosingAThemeStoresItAndRepaintsTheApplication() {
        Workplace place;
        SettingsWindow window(*place.profiles, place.preferences);
        auto* dark = child<ThemeSwatch>(&window, "themeSwatch-dark");
        auto* solarized = child<ThemeSwatch>(&window, "themeSwatch-solarizedLight");
        QVERIFY(child<ThemeSwatch>(&window, "themeSwatch-system")->isChecked());

        dark->click();
        QCOMPARE(storedTheme(place.preferences), AppTheme::dark);
        QVERIFY(dark->isChecked());
        QCOMPARE(QGuiApplication::palette().color(QPalette::Window), standardDarkPalette().color(QPalette::Window));

        solarized->click();
        QCOMPARE(storedTheme(place.preferences), AppTheme::solarizedLight);
        QVERIFY(!dark->isChecked());
        QCOMPARE(QGuiApplication::palette().color(QPalette::Window), ThemePalette::solarizedLight().windowBackground);
        applyTheme(AppTheme::system);
    }

    void aBackupMadeNowIsListedAndCanBePutBack() {
        Workplace place;
        place.addMovement("40");
        LedgerViewModel& model = place.profiles->model();
        SettingsWindow window(*place.profiles, place.preferences);
        auto* tab = child<SettingsBackupTab>(&window, "settingsTab-backup");
        auto* list = child<QListView>(tab, "backupList");
        QCOMPARE(child<QLabel>(tab, "lastBackup")->text(), QStringLiteral("Nessuno"));

        QSignalSpy reported(&model, &LedgerViewModel::backupsChanged);
        child<QPushButton>(tab, "backUpNowButton")->click();
        QVERIFY(tab->isBusy());
        QVERIFY(!child<QPushButton>(tab, "backUpNowButton")->isEnabled());
        QVERIFY(reported.wait());
        QVERIFY(!tab->isBusy());
        QCOMPARE(list->model()->rowCount(), 1);
        QCOMPARE(child<QLabel>(tab, "lastBackup")->text(), list->model()->index(0, 0).data().toString());

        // Putting it back, after the question, takes away what was added since.
        place.addMovement("7");
        QCOMPARE(model.ledger().transactions().size(), std::size_t(2));
        auto* restore = child<QPushButton>(tab, "restoreBackupButton");
        QVERIFY(!restore->isEnabled());
        list->setCurrentIndex(list->model()->index(0, 0));
        restore->click();
        auto* question = child<QMessageBox>(tab, "restoreQuestion");
        QVERIFY(question->informativeText().contains(QStringLiteral("Movimenti e allegati di le mie finanze")));
        QSignalSpy reloaded(&model, &LedgerViewModel::ledgerChanged);
        child<QPushButton>(question, "confirmRestoreButton")->click();
        QVERIFY(tab->isBusy());
        QVERIFY(reloaded.wait());
        QCOMPARE(model.ledger().transactions().size(), std::size_t(1));
        QTRY_VERIFY(!tab->isBusy());
        QCOMPARE(list->model()->rowCount(), 2);  // with the backup of the state before
    }

    void aProfileNeedsItsNameAndThenAppearsInTheList() {
        Workplace place;
        SettingsWindow window(*place.profiles, place.preferences);
        auto* tab = child<SettingsProfilesTab>(&window, "settingsTab-profiles");
        auto* list = child<QListView>(tab, "profileList");
        QCOMPARE(list->model()->rowCount(), 1);
        QCOMPARE(list->model()->index(0, 0).data().toString(), QStringLiteral("Le mie finanze (in uso)"));

        child<QPushButton>(tab, "addProfileButton")->click();
        auto* form = child<ProfileForm>(tab, "profileForm");
        child<QLineEdit>(form, "lastNameField")->setText(QStringLiteral("Rossi"));
        child<QPushButton>(form, "saveProfileButton")->click();
        QVERIFY(form->isVisible());
        QCOMPARE(child<QLabel>(form, "profileFormError")->text(), QStringLiteral("Scrivi il nome della persona."));
        QCOMPARE(list->model()->rowCount(), 1);

        child<QLineEdit>(form, "firstNameField")->setText(QStringLiteral("Mario"));
        child<QPushButton>(form, "saveProfileButton")->click();
        QTRY_VERIFY(tab->findChild<ProfileForm*>() == nullptr);
        QCOMPARE(list->model()->rowCount(), 2);
        QCOMPARE(list->model()->index(1, 0).data().toString(), QStringLiteral("Mario Rossi"));

        // Switching marks the profile in use and leaves the user's own data unmarked.
        list->setCurrentIndex(list->model()->index(1, 0));
        child<QPushButton>(tab, "useProfileButton")->click();
        QCOMPARE(place.profiles->model().profile()->displayName(), std::string("Mario Rossi"));
        QCOMPARE(list->model()->index(1, 0).data().toString(), QStringLiteral("Mario Rossi (in uso)"));
        QCOMPARE(list->model()->index(0, 0).data().toString(), QStringLiteral("Le mie finanze"));
    }

    // On the dark palette an unticked box stands out from the window around it.
    void uncheckedBoxesShowOnTheDarkPalette() {
        ContrastStyle style(QStringLiteral("Fusion"));
        QCheckBox box(QStringLiteral("Notifica"));
        box.setStyle(&style);
        box.setPalette(standardDarkPalette());
        box.resize(box.sizeHint());
        const QImage drawn = box.grab().toImage();
        QStyleOptionButton option;
        option.initFrom(&box);
        const QRect indicator = style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
        const int background = standardDarkPalette().color(QPalette::Window).lightness();
        int brightest = 0;
        for (int x = indicator.left(); x <= indicator.right(); ++x) {
            brightest = std::max(brightest, QColor(drawn.pixel(x, indicator.center().y())).lightness());
        }
        QVERIFY2(brightest - background > 60, qPrintable(QString::number(brightest - background)));
    }
};

QTEST_MAIN(SettingsWindowTest)
#include "SettingsWindowTest.moc"
