// Switching between the user's own data and a managed profile's: each has its own ledger, the
// choice is remembered, and an edit made just before a switch is on disk.

#include "app/model/ProfilesController.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/rates/RateCache.hpp"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace vantello;
using namespace vantello::app;

class ProfilesControllerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void switchingKeepsEachProfileItsOwnDataAndRemembersTheChoice() {
        QTemporaryDir home;
        const std::filesystem::path root = std::filesystem::path(home.path().toStdString()) / "Vantello";
        Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};
        std::vector<std::filesystem::path> trashed;
        const Calendar rome("Europe/Rome");
        // Rates read from the cache reach every profile's model, without a download.
        ExchangeRates cached;
        cached.days["2026-03-17"]["USD"] = Decimal(1085, -3);
        std::filesystem::create_directories(root);
        RateCache::write(root / RatesKeeper::cacheFileName, cached);
        RatesKeeper rates(root / RatesKeeper::cacheFileName);
        const auto setup = [&] {
            return ProfilesController::Setup{root, rome, [&] { return *rome.date({2026, 3, 18}, 12); }, &preferences,
                                             [&](const std::filesystem::path& folder) { trashed.push_back(folder); },
                                             nullptr, &rates};
        };
        auto owner = std::make_unique<ProfilesController>(setup());
        ProfilesController& profiles = *owner;
        QVERIFY(!profiles.model().profile());
        QVERIFY(profiles.addProfile(ManagedProfile::Kind::household, {}, QStringLiteral("Rossi")) == std::nullopt);
        QVERIFY(profiles.addProfile(ManagedProfile::Kind::household, {}, QStringLiteral("rossi")).has_value());
        QCOMPARE(profiles.list().profiles.size(), std::size_t(1));
        const ManagedProfile household = profiles.list().profiles.front();

        profiles.model().apply(QStringLiteral("Ignora avviso"),
                               [](Ledger& ledger) { ledger.change([](LedgerData& data) { data.dismissedAlerts.insert("mio"); }); });
        QSignalSpy switched(&profiles, &ProfilesController::modelChanged);
        profiles.switchTo(household.id);
        QCOMPARE(switched.count(), 1);
        QCOMPARE(profiles.model().profile()->id, household.id);
        QVERIFY(profiles.model().ledger().data().dismissedAlerts.empty());
        QVERIFY(profiles.model().exchangeRates() == std::optional(cached));
        // The user's edit reached the disk before the switch.
        QVERIFY(LedgerStore(root / "movimenti.json").load().dismissedAlerts.contains("mio"));

        // A new start opens the profile chosen last.
        owner.reset();
        ProfilesController again(setup());
        QCOMPARE(again.model().profile()->id, household.id);
        again.removeProfile(household.id);
        QVERIFY(!again.model().profile());
        QVERIFY(again.list().profiles.empty());
        QCOMPARE(trashed.size(), std::size_t(1));
        QVERIFY(!preferences.currentProfile());
    }
};

QTEST_GUILESS_MAIN(ProfilesControllerTest)
#include "ProfilesControllerTest.moc"
