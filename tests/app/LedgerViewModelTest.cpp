// The application model on a real data folder: the one door for changes, the failed loads, the
// demo, the cached month values and undo.

#include "app/model/LedgerAnalyses.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/LedgerSharing.hpp"
#include "core/planning/SubscriptionActions.hpp"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <fstream>

using namespace vantello;
using namespace vantello::app;

namespace {

const Calendar rome("Europe/Rome");

Instant noon(int year, int month, int day) { return *rome.date({year, month, day}, 12); }

Transaction movement(const char* amount, Instant date, const char* category = "spesa",
                     const char* account = "principale") {
    Transaction made;
    made.id = Uuid::random();
    made.amount = *Decimal::fromCanonical(amount);
    made.date = date;
    made.categoryID = category;
    made.accountID = account;
    return made;
}

// A temporary data folder and preferences, and models made on them with a frozen clock.
struct Workplace {
    QTemporaryDir home;
    std::filesystem::path folder = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};
    LedgerStore store{folder / "movimenti.json"};

    std::unique_ptr<LedgerViewModel> model() {
        return std::make_unique<LedgerViewModel>(
            LedgerViewModel::Setup{folder, std::nullopt, rome, [] { return noon(2026, 3, 18); }, &preferences,
                                   folder / "Backup"});
    }
    [[nodiscard]] std::filesystem::file_time_type written() const {
        return std::filesystem::last_write_time(store.file());
    }
};

}  // namespace

class LedgerViewModelTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void changeThatChangesNothingIsNeitherCountedNorSaved() {
        Workplace place;
        auto model = place.model();
        QSignalSpy changed(model.get(), &LedgerViewModel::ledgerChanged);
        const auto revision = model->ledgerRevision();

        model->apply(QStringLiteral("Elimina movimento"), [](Ledger& ledger) { ledger.deleteTransaction(Uuid::random()); });
        QCOMPARE(model->ledgerRevision(), revision);
        QCOMPARE(changed.count(), 0);
        QVERIFY(!model->canUndo());
        model.reset();  // waits for the writer
        QVERIFY(!std::filesystem::exists(place.store.file()));

        // A refused operation changes nothing and says why in the banner, or to the sheet.
        model = place.model();
        const Transaction bad = movement("0", noon(2026, 3, 2));
        model->apply(QStringLiteral("Aggiungi movimento"), [&](Ledger& ledger) { ledger.add(bad); });
        QVERIFY(model->errorMessage().has_value());
        const auto returned = model->apply(QStringLiteral("Aggiungi movimento"), [&](Ledger& ledger) { ledger.add(bad); },
                                           LedgerViewModel::ErrorRoute::caller);
        QCOMPARE(returned, model->errorMessage());
        QCOMPARE(model->ledgerRevision(), revision);
    }

    void damagedFileIsMovedAsideAndNoAttachmentIsDeleted() {
        Workplace place;
        std::filesystem::create_directories(place.folder / "Allegati");
        std::ofstream(place.store.file()) << "{\"transactions\": [";
        std::ofstream(place.folder / "Allegati" / "A.pdf") << "receipt";
        std::filesystem::last_write_time(place.folder / "Allegati" / "A.pdf",
                                         std::filesystem::file_time_type::clock::now() - std::chrono::hours(48));

        auto model = place.model();
        QVERIFY(model->ledger().transactions().empty());
        QVERIFY(model->canSave());
        QVERIFY(!model->canRemoveAttachments());
        QVERIFY(model->errorMessage()->contains(QStringLiteral("«movimenti-danneggiato-")));
        model->apply(QStringLiteral("Aggiungi movimento"),
                     [](Ledger& ledger) { ledger.add(movement("12.5", noon(2026, 3, 2))); });
        model.reset();
        QCOMPARE(place.store.load().transactions.size(), std::size_t(1));
        QVERIFY(std::filesystem::exists(place.folder / "Allegati" / "A.pdf"));
    }

    void demoWritesNothingAndLeavingItShowsTheStoredData() {
        Workplace place;
        LedgerData stored;
        stored.transactions = std::vector{movement("40", noon(2026, 3, 3))};
        place.store.save(stored);
        const auto before = place.written();

        auto model = place.model();
        QSignalSpy demo(model.get(), &LedgerViewModel::demoChanged);
        model->enterDemo();
        QVERIFY(model->isDemo());
        QVERIFY(model->ledger().transactions().size() > 100);
        model->apply(QStringLiteral("Elimina movimento"), [](Ledger& ledger) {
            ledger.deleteTransaction(ledger.transactions().front().id);
        });
        model->exitDemo();
        QCOMPARE(demo.count(), 2);
        QVERIFY(Ledger(stored) == model->ledger());
        QVERIFY(!model->canUndo());  // undo never reaches into the demo
        model.reset();
        QCOMPARE(place.written(), before);
    }

    void accountFilterChangesTheMonthAndTheCacheComesBack() {
        Workplace place;
        auto model = place.model();
        model->apply(QStringLiteral("Aggiungi conto"), [](Ledger& ledger) {
            ledger.change([](LedgerData& data) { data.accounts.push_back({"carta", "Carta", "creditcard", {}, {}}); });
            ledger.add(movement("30", noon(2026, 3, 5)));
            ledger.add(movement("70", noon(2026, 3, 6), "spesa", "carta"));
        });
        const MonthSummary* everything = &model->monthSummary();
        QCOMPARE(everything->totals.expenses, Decimal(100));
        const MonthSummary cachedCopy = *everything;

        model->setSelectedAccountID("carta");
        QCOMPARE(model->monthSummary().totals.expenses, Decimal(70));
        QCOMPARE(model->monthTransactions().size(), std::size_t(1));
        model->exportMonth();  // what is shown: the card's movement only
        QCOMPARE(model->exportRequest()->fileName, QStringLiteral("Vantello 2026-03.csv"));
        QVERIFY(model->exportRequest()->document.find("70") != std::string::npos);
        QVERIFY(model->exportRequest()->document.find("30") == std::string::npos);

        model->setSelectedAccountID(std::nullopt);
        // Worked out again for the same revision: the same value.
        QVERIFY(model->monthSummary() == cachedCopy);
        model->showPreviousMonth();
        QCOMPARE(model->monthSummary().totals.expenses, Decimal());
        QVERIFY(!model->isShowingCurrentMonth());
        model->showCurrentMonth();
        QVERIFY(model->isShowingCurrentMonth());
    }

    void undoOfAnImportRemovesExactlyTheImportedMovementsAndSaves() {
        Workplace place;
        auto model = place.model();
        const Transaction own = movement("15", noon(2026, 3, 1));
        model->apply(QStringLiteral("Aggiungi movimento"), [&](Ledger& ledger) { ledger.add(own); });
        const Ledger beforeImport = model->ledger();

        const std::filesystem::path statement = place.folder.parent_path() / "estratto.csv";
        std::ofstream(statement) << "Data;Descrizione;Importo\n04/03/2026;NETFLIX;-9,99\n07/03/2026;ESSELUNGA;-52,30\n";
        model->openImportFile(statement);
        QVERIFY(model->importSession());
        QCOMPARE(model->importSession()->statement.rows.size(), std::size_t(2));
        const auto result = model->confirmImport("principale", false);
        QCOMPARE(result->added, 2);
        QVERIFY(!model->importSession());
        QCOMPARE(model->ledger().transactions().size(), std::size_t(3));
        QCOMPARE(model->undoTitle(), QStringLiteral("Annulla Importa movimenti"));

        model->undo();
        QVERIFY(model->ledger() == beforeImport);
        QVERIFY(model->canRedo());
        QCOMPARE(model->redoTitle(), QStringLiteral("Ripeti Importa movimenti"));
        model.reset();
        QVERIFY(Ledger(place.store.load()) == beforeImport);

        // Redo puts them back; a new change forgets what could be redone.
        model = place.model();
        QVERIFY(!model->canUndo());  // a new model starts without history
        model->apply(QStringLiteral("Aggiungi movimento"),
                     [&](Ledger& ledger) { ledger.add(movement("1", noon(2026, 3, 9))); });
        model->undo();
        model->redo();
        QCOMPARE(model->ledger().transactions().size(), std::size_t(2));
        QVERIFY(!model->canRedo());
    }

    void dailyBackupOnceAndARestoreThatCanBeTakenBack() {
        Workplace place;
        place.store.save({});
        auto model = place.model();
        QTRY_COMPARE(model->backups().size(), std::size_t(1));  // today's, made at the start
        model->apply(QStringLiteral("Aggiungi movimento"),
                     [](Ledger& ledger) { ledger.add(movement("12.5", noon(2026, 3, 2))); });
        model.reset();

        model = place.model();
        QTest::qWait(50);
        QCOMPARE(model->backups().size(), std::size_t(1));  // not a second one the same day
        QSignalSpy reloaded(model.get(), &LedgerViewModel::ledgerChanged);
        model->restoreBackup(model->backups().front());
        QTRY_VERIFY(model->ledger().transactions().empty());
        QVERIFY(!model->backupError());
        // The state before the restore was backed up first.
        QTRY_COMPARE(model->backups().size(), std::size_t(2));

        model->setCustomBackupFolder(place.store.file());  // a file, not a folder
        QVERIFY(model->backupError()->startsWith(QStringLiteral("Non riesco a usare questa cartella per i backup: ")));
        QVERIFY(!model->customBackupFolder());
    }

    void workPeriodErrorsGoToTheEditorAndSettingsAreKept() {
        Workplace place;
        auto model = place.model();
        const auto ongoing = [](Instant start) {
            UnemploymentDraft draft;
            draft.id = Uuid::random();
            draft.start = start;
            return draft;
        };
        QVERIFY(!model->saveWorkPeriod(ongoing(noon(2026, 3, 1))));
        const auto revision = model->ledgerRevision();
        QCOMPARE(model->saveWorkPeriod(ongoing(noon(2026, 3, 10))),
                 std::optional(QStringLiteral("C'è già un periodo di disoccupazione in corso.")));
        QCOMPARE(model->ledgerRevision(), revision);
        QVERIFY(!model->errorMessage());

        model->setSalaryReminder({true, 5, 9});
        model->postponeSalaryBanner();
        model->setAlertNotifications(true);
        model->setSidebarSelection(QStringLiteral("goals"));
        QSignalSpy adjusted(model.get(), &LedgerViewModel::scenarioAdjustmentsChanged);
        model->setScenarioAdjustments({{Uuid::random(), ScenarioAdjustment::Income{0.05}}});
        QCOMPARE(adjusted.count(), 1);
        model.reset();
        model = place.model();
        QCOMPARE(model->salaryReminder(), (SalaryReminder{true, 5, 9}));
        QCOMPARE(model->salaryPostponedDay(), std::optional(rome.startOfDay(noon(2026, 3, 18))));
        QVERIFY(model->alertNotifications());
        QCOMPARE(model->sidebarSelection(), std::optional(QStringLiteral("goals")));
        QVERIFY(model->scenarioAdjustments().empty());  // never saved
    }

    void analysesWorkedAheadDescribeTheLedgerAsItIsNow() {
        Workplace place;
        LedgerData data;
        for (const Instant day : {noon(2025, 12, 5), noon(2026, 1, 5), noon(2026, 2, 5), noon(2026, 3, 5)}) {
            Transaction charge = movement("12.99", day, "abbonamenti");
            charge.note = "Streaming";
            data.transactions.push_back(charge);
        }
        place.store.save(data);
        auto model = place.model();
        LedgerAnalyses& analyses = model->analyses();
        // The first run starts with the events; the change comes while it may still be working.
        QCoreApplication::processEvents();
        model->apply(QStringLiteral("Aggiungi persona"), [](Ledger& ledger) { addPerson(ledger, "Anna"); });
        QTRY_VERIFY(analyses.isReady());

        const Ledger& ledger = model->ledger();
        QCOMPARE(analyses.subscriptions(), detectSubscriptions(ledger, rome));
        QCOMPARE(analyses.subscriptions().size(), std::size_t(1));
        QCOMPARE(analyses.netWorthHistory(), netWorthHistory(ledger, 12, model->now(), rome));
        QCOMPARE(analyses.peopleBalances().size(), std::size_t(1));
        QCOMPARE(analyses.peopleHistories().size(), std::size_t(1));

        // Asked before the work ahead ends, a value is worked out on the spot for the ledger as it is.
        const DetectedSubscription streaming = analyses.subscriptions().front();
        model->apply(QStringLiteral("Ignora abbonamento"),
                     [&](Ledger& changed) { ignoreSubscription(changed, streaming); });
        QVERIFY(analyses.subscriptions().empty());
        QTRY_VERIFY(analyses.isReady());
        QVERIFY(analyses.subscriptions().empty());
    }

    void withoutDataFolderNothingIsSaved() {
        Preferences preferences{QDir::temp().filePath(QStringLiteral("vantello-no-folder.conf"))};
        LedgerViewModel model({std::nullopt, std::nullopt, rome, [] { return noon(2026, 3, 18); }, &preferences, {}});
        QVERIFY(!model.hasStore());
        QCOMPARE(*model.errorMessage(), QStringLiteral("Non trovo la cartella dei dati: le modifiche non verranno salvate."));
    }
};

QTEST_GUILESS_MAIN(LedgerViewModelTest)
#include "LedgerViewModelTest.moc"
