// The search screen on the demo ledger with a frozen day: typing narrows the results, bad
// amounts are refused in place, a saved search runs again to the same results, the saved
// searches' actions undo, and the export writes what is shown.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include "app/model/LedgerViewModel.hpp"
#include "app/model/SearchActions.hpp"
#include "app/model/SearchResultsModel.hpp"
#include "app/screens/SearchNameDialog.hpp"
#include "app/screens/SearchScreen.hpp"
#include "app/settings/Language.hpp"
#include "core/base/AtomicFile.hpp"

using namespace vantello;
using namespace vantello::app;

namespace {

const Calendar rome("Europe/Rome");

Instant noon(int year, int month, int day) { return *rome.date({year, month, day}, 12); }

struct Workplace {
    QTemporaryDir home;
    std::filesystem::path folder = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};

    std::unique_ptr<LedgerViewModel> model() {
        auto made = std::make_unique<LedgerViewModel>(LedgerViewModel::Setup{
            folder, std::nullopt, rome, [] { return noon(2026, 3, 18); }, &preferences, folder / "Backup"});
        made->enterDemo();
        return made;
    }
};

template <typename Widget>
Widget* part(const QWidget& screen, const char* name) {
    auto* found = screen.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget named %s", name);
    return found;
}

}  // namespace

class SearchScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QApplication::setOrganizationName(QStringLiteral("Vantello"));
        QApplication::setApplicationName(QStringLiteral("Vantello"));
        QSettings().remove(QStringLiteral("language"));
        installInterfaceLanguage(*QCoreApplication::instance());
    }

    void typingNarrowsTheResultsAndBadAmountsAreRefused() {
        Workplace place;
        auto model = place.model();
        SearchScreen screen(*model);
        screen.show();
        QTRY_VERIFY(screen.resultsModel().count() > 0);
        const int everything = screen.resultsModel().count();
        QCOMPARE(everything, static_cast<int>(model->ledger().transactions().size()));

        QTest::keyClicks(part<QLineEdit>(screen, "searchText"), QStringLiteral("bolletta"));
        QTRY_VERIFY(screen.resultsModel().count() < everything);
        const QJsonArray rows = screen.resultsModel().rowsAsJson();
        QVERIFY(!rows.isEmpty());
        for (const auto& row : rows) QVERIFY(row.toObject()[QStringLiteral("note")].toString().contains(QStringLiteral("Bolletta")));
        QVERIFY(part<QLabel>(screen, "searchCount")->text().startsWith(QString::number(rows.size())));

        // Only expenses of 50 € or more: every amount shown is at least that.
        part<QLineEdit>(screen, "searchText")->clear();
        part<QComboBox>(screen, "searchKind")->setCurrentIndex(1);
        part<QLineEdit>(screen, "searchMinimum")->setText(QStringLiteral("50,00"));
        screen.searchNow();
        for (const Transaction& found : screen.resultsModel().results()) {
            QCOMPARE(found.kind, TransactionKind::expense);
            QVERIFY(found.amount >= *Decimal::fromCanonical("50"));
        }

        // A bound that is not an amount says so and leaves the results alone.
        const int before = screen.resultsModel().count();
        part<QLineEdit>(screen, "searchMaximum")->setText(QStringLiteral("dieci"));
        screen.searchNow();
        QVERIFY(!part<QLabel>(screen, "searchProblem")->isHidden());
        QCOMPARE(screen.resultsModel().count(), before);
        part<QLineEdit>(screen, "searchMaximum")->setText(QStringLiteral("10"));
        screen.searchNow();
        QVERIFY(!part<QLabel>(screen, "searchProblem")->isHidden());  // minimum above maximum

        // Nothing found shows the empty state with the way back.
        part<QLineEdit>(screen, "searchMaximum")->clear();
        part<QLineEdit>(screen, "searchText")->setText(QStringLiteral("zzz nessuna nota così"));
        screen.searchNow();
        QCOMPARE(screen.resultsModel().count(), 0);
        QVERIFY(part<QPushButton>(screen, "searchEmptyClearButton")->isVisibleTo(&screen));
        part<QPushButton>(screen, "searchEmptyClearButton")->click();
        QCOMPARE(screen.resultsModel().count(), everything);

        // A new movement matching the search appears without typing again.
        part<QLineEdit>(screen, "searchText")->setText(QStringLiteral("bolletta"));
        screen.searchNow();
        const int bills = screen.resultsModel().count();
        TransactionDraft draft = model->newDraft(TransactionKind::expense);
        draft.amountText = "12,00";
        draft.note = "Bolletta acqua";
        QVERIFY(!model->saveDraft(draft));
        QTRY_COMPARE(screen.resultsModel().count(), bills + 1);
        // Hidden, the screen waits to be shown before searching again.
        screen.hide();
        model->undo();
        QTest::qWait(200);
        QCOMPARE(screen.resultsModel().count(), bills + 1);
        screen.show();
        QTRY_COMPARE(screen.resultsModel().count(), bills);
    }

    void savedSearchRunsAgainToTheSameResults() {
        Workplace place;
        auto model = place.model();
        SearchScreen screen(*model);
        SearchForm conditions;
        conditions.kind = TransactionKind::expense;
        conditions.minimum = QStringLiteral("20,00");
        conditions.period = TransactionFilter::Period::last12Months;
        screen.setForm(conditions);
        const QJsonArray shown = screen.resultsModel().rowsAsJson();
        QVERIFY(!shown.isEmpty());

        part<QPushButton>(screen, "saveSearchButton")->click();
        SearchNameDialog* dialog = screen.saveDialog();
        QVERIFY(dialog && dialog->isVisible());
        // The core refuses an empty name; the sheet says why and stays open.
        auto* name = part<QLineEdit>(*dialog, "searchNameField");
        name->setText(QStringLiteral("   "));
        part<QPushButton>(*dialog, "searchNameConfirm")->click();
        QVERIFY(dialog->isVisible());
        QVERIFY(!part<QLabel>(*dialog, "searchNameProblem")->text().isEmpty());
        QVERIFY(model->ledger().data().savedSearches.empty());
        name->setText(QStringLiteral("Spese grandi"));
        QTest::keyClick(name, Qt::Key_Return);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(model->ledger().data().savedSearches.size(), std::size_t{1});
        const Uuid id = model->ledger().data().savedSearches.front().id;

        screen.clearConditions();
        QVERIFY(screen.resultsModel().rowsAsJson() != shown);
        screen.runSavedSearch(id);
        QCOMPARE(screen.resultsModel().rowsAsJson(), shown);
        QCOMPARE(screen.form(), conditions);

        // Renaming and deleting go through the model, and undo brings the search back.
        QVERIFY(renameSearch(*model, id, QString()).has_value());
        QVERIFY(!renameSearch(*model, id, QStringLiteral("Uscite sopra 20 €")));
        QCOMPARE(savedSearch(*model, id)->name, std::string("Uscite sopra 20 €"));
        deleteSearch(*model, id);
        QVERIFY(!savedSearch(*model, id));
        screen.runSavedSearch(id);  // gone: nothing changes, nothing breaks
        model->undo();
        QVERIFY(savedSearch(*model, id));
    }

    void exportWritesWhatIsShown() {
        Workplace place;
        auto model = place.model();
        SearchScreen screen(*model);
        part<QLineEdit>(screen, "searchText")->setText(QStringLiteral("bolletta"));
        screen.searchNow();
        const auto file = place.folder.parent_path() / "ricerca.csv";
        QVERIFY(!screen.exportResultsTo(file));
        const std::string written = readWholeFile(file);
        QCOMPARE(static_cast<int>(std::count(written.begin(), written.end(), '\n')), screen.resultsModel().count());
        QVERIFY(written.find("Bolletta") != std::string::npos);
        QVERIFY(screen.exportResultsTo(place.folder.parent_path() / "manca" / "ricerca.csv").has_value());
    }

    // A hundred thousand movements: the screen opens and answers a typed word quickly.
    void largeLedgerStaysQuick() {
        Workplace place;
        auto model = place.model();
        LedgerData data = model->ledger().data();
        const char* notes[] = {"Esselunga", "Eni Station", "Trattoria da Mario", "Zara", "Bolletta luce e gas"};
        for (int index = 0; index < 100'000; ++index) {
            Transaction made;
            made.id = Uuid::random();
            made.amount = *Decimal::fromCanonical(std::to_string(5 + index % 200));
            made.date = noon(2026, 3, 18) - std::chrono::hours(2 * index);
            made.categoryID = "spesa";
            made.note = notes[index % 5];
            data.transactions.push_back(made);
        }
        model->apply(QStringLiteral("Prova"), [&](Ledger& ledger) { ledger = Ledger(data); });
        QElapsedTimer timer;
        timer.start();
        SearchScreen screen(*model);
        const qint64 opening = timer.restart();
        QVERIFY(opening < 16);
        part<QLineEdit>(screen, "searchText")->setText(QStringLiteral("mario"));
        screen.searchNow();
        const qint64 typing = timer.elapsed();
        qInfo("opening %lld ms, searching %lld ms", opening, typing);
        QVERIFY(screen.resultsModel().count() >= 20'000);
        QVERIFY(typing < 500);
    }
};

QTEST_MAIN(SearchScreenTest)
#include "SearchScreenTest.moc"
