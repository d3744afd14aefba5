// The quick add on a real data folder with a frozen clock: a movement typed the Italian way is
// added to the data in use, a bad amount is said in the panel, and the tray stays silent where
// the desktop has no tray.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QTemporaryDir>
#include <QtTest>

#include "app/model/ProfilesController.hpp"
#include "app/screens/QuickAddPanel.hpp"
#include "app/screens/QuickAddTray.hpp"
#include "app/settings/QuickAddSetting.hpp"

using namespace vantello;
using namespace vantello::app;

namespace {

const Calendar rome("Europe/Rome");

struct Workplace {
    QTemporaryDir home;
    std::filesystem::path root = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};
    ProfilesController profiles{ProfilesController::Setup{
        root, rome, [] { return *rome.date({2026, 3, 18}, 12); }, &preferences,
        [](const std::filesystem::path& folder) { std::filesystem::remove_all(folder); }, nullptr, nullptr}};
};

template <typename Widget>
Widget* child(QObject* parent, const char* name) {
    auto* found = parent->findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget %s", name);
    return found;
}

}  // namespace

class QuickAddTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void addsTheMovementAsTypedAndClearsTheFields() {
        Workplace place;
        QuickAddPanel panel(place.profiles);
        QSignalSpy added(&panel, &QuickAddPanel::added);
        auto* amount = child<QLineEdit>(&panel, "quickAddAmount");
        auto* kind = child<QComboBox>(&panel, "quickAddKind");
        auto* category = child<QComboBox>(&panel, "quickAddCategory");

        // The categories follow the kind.
        kind->setCurrentIndex(1);
        QCOMPARE(category->currentData().toString(),
                 QString::fromStdString(place.profiles.model().ledger().categories(TransactionKind::income).front().id));
        kind->setCurrentIndex(0);
        category->setCurrentIndex(2);
        const std::string categoryID = category->currentData().toString().toStdString();
        amount->setText(QStringLiteral("12,50"));
        child<QLineEdit>(&panel, "quickAddNote")->setText(QStringLiteral("Caffè"));
        QTest::keyClick(amount, Qt::Key_Return);

        const auto& movements = place.profiles.model().ledger().transactions();
        QCOMPARE(movements.size(), std::size_t(1));
        const Transaction& movement = movements.front();
        QCOMPARE(movement.amount, *Decimal::fromCanonical("12.5"));
        QCOMPARE(movement.kind, TransactionKind::expense);
        QCOMPARE(movement.categoryID, categoryID);
        QCOMPARE(movement.note, std::string("Caffè"));
        QCOMPARE(added.count(), 1);
        QVERIFY(amount->text().isEmpty());
        QVERIFY(child<QLineEdit>(&panel, "quickAddNote")->text().isEmpty());
    }

    void aBadAmountIsSaidInThePanelAndAddsNothing() {
        Workplace place;
        QuickAddPanel panel(place.profiles);
        QSignalSpy added(&panel, &QuickAddPanel::added);
        auto* amount = child<QLineEdit>(&panel, "quickAddAmount");
        for (const char* typed : {"abc", "0", ""}) {
            amount->setText(QString::fromLatin1(typed));
            child<QPushButton>(&panel, "quickAddButton")->click();
            QVERIFY2(!child<QLabel>(&panel, "quickAddMessage")->text().isEmpty(), typed);
            QCOMPARE(amount->text(), QString::fromLatin1(typed));  // kept, to be corrected
        }
        QVERIFY(place.profiles.model().ledger().transactions().empty());
        QCOMPARE(added.count(), 0);
    }

    void addsToTheProfileInUse() {
        Workplace place;
        QuickAddPanel panel(place.profiles);
        QCOMPARE(place.profiles.addProfile(ManagedProfile::Kind::household, {}, QStringLiteral("Rossi")), std::nullopt);
        place.profiles.switchTo(place.profiles.list().profiles.front().id);
        child<QLineEdit>(&panel, "quickAddAmount")->setText(QStringLiteral("1.250,00"));
        child<QPushButton>(&panel, "quickAddButton")->click();
        QCOMPARE(place.profiles.model().ledger().transactions().size(), std::size_t(1));
        QCOMPARE(place.profiles.model().ledger().transactions().front().amount, *Decimal::fromCanonical("1250"));
        place.profiles.switchTo(std::nullopt);
        QVERIFY(place.profiles.model().ledger().transactions().empty());
    }

    void withoutATrayTheIconStaysAway() {
        QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
        Workplace place;
        setShowsQuickAddIcon(place.preferences, true);
        QuickAddTray tray(place.profiles, place.preferences);
        tray.followPreference();
        QVERIFY(!tray.isIconVisible());
    }
};

QTEST_MAIN(QuickAddTest)
#include "QuickAddTest.moc"
