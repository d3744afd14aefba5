// The month's movements screen on the demo ledger with a frozen day: rows and tiles, the month
// and account choice, deleting with undo, the start card, the alerts and the keyboard.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/model/MonthMovementsModel.hpp"
#include "app/screens/MovementsScreen.hpp"
#include "app/screens/SummaryTile.hpp"
#include "app/settings/Language.hpp"
#include "tests/app/ScreenWorkplace.hpp"

#include <set>

using namespace vantello;
using namespace vantello::app;
using namespace vantello::app::testing;

namespace {

template <typename Widget>
Widget* part(const QWidget& screen, const char* name) {
    auto* found = screen.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget named %s", name);
    return found;
}

std::vector<int> movementRows(const MonthMovementsModel& rows) {
    std::vector<int> found;
    for (int row = 0; row < rows.rowCount(); ++row) {
        if (rows.transactionID(row)) found.push_back(row);
    }
    return found;
}

}  // namespace

class MovementsScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void demoMonthShowsItsDaysMovementsAndTiles() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        MovementsScreen screen(*model);
        const MonthMovementsModel& rows = screen.listModel();

        QCOMPARE(part<QStackedWidget>(screen, "movementsPages")->currentWidget()->objectName(),
                 QStringLiteral("movementsList"));
        QCOMPARE(part<QLabel>(screen, "monthTitle")->text(), QStringLiteral("marzo 2026"));
        QVERIFY(part<QPushButton>(screen, "currentMonthButton")->isHidden());
        QCOMPARE(std::size_t(rows.movementCount()), model->monthTransactions().size());
        QVERIFY(rows.movementCount() > 5);

        // Newest first, each day once, under its header, whose net leaves out transfers.
        QCOMPARE(rows.rowKind(0), MonthMovementsModel::RowKind::dayHeader);
        std::set<qlonglong> days;
        qlonglong previousDay = std::numeric_limits<qlonglong>::max();
        for (int row = 0; row < rows.rowCount(); ++row) {
            const QModelIndex index = rows.index(row);
            const qlonglong day = index.data(MonthMovementsModel::DayRole).toLongLong();
            QVERIFY(day <= previousDay);
            previousDay = day;
            if (rows.rowKind(row) == MonthMovementsModel::RowKind::dayHeader) {
                QVERIFY(days.insert(day).second);
                QVERIFY(!(rows.flags(index) & Qt::ItemIsSelectable));
                PeriodTotals dayTotals;
                for (int next = row + 1; next < rows.rowCount() && rows.transactionID(next); ++next) {
                    const Transaction& movement = *model->ledger().transaction(*rows.transactionID(next));
                    if (countsInTotals(movement)) addToTotals(dayTotals, movement);
                }
                const Decimal net = dayTotals.net();
                QCOMPARE(index.data(MonthMovementsModel::SignRole).toInt(), net.sign());
                QCOMPARE(index.data(MonthMovementsModel::AmountTextRole).toString(),
                         net.isZero() ? euroText(net)
                                      : movementAmountText(net.magnitude(), net.sign() < 0 ? TransactionKind::expense
                                                                                           : TransactionKind::income));
            }
        }

        const QJsonArray dump = rows.rowsAsJson();
        QCOMPARE(dump.size(), rows.rowCount());
        QCOMPARE(dump[1].toObject()[QStringLiteral("id")].toString(),
                 QString::fromStdString(model->monthTransactions().front().id.text()));

        const MonthSummary& summary = model->monthSummary();
        QCOMPARE(part<QLabel>(screen, "incomeFigure")->text(),
                 movementAmountText(summary.totals.income, TransactionKind::income));
        QCOMPARE(part<QLabel>(screen, "expensesFigure")->text(),
                 movementAmountText(summary.totals.expenses, TransactionKind::expense));
        QVERIFY(summary.forecast && summary.lowestBalance);
        auto* info = part<QToolButton>(screen, "forecastInfo");
        QCOMPARE(info->accessibleName(), QStringLiteral("Saldo previsto a fine mese: come è calcolato"));
        QVERIFY(info->toolTip().contains(QString::fromStdString(forecastExplanation(*summary.forecast)).toHtmlEscaped()));
        QVERIFY(screen.findChild<SummaryTile*>(QStringLiteral("lowestBalanceTile"))->isVisibleTo(&screen));

        // Every control a screen reader reaches says what it is.
        for (QWidget* control : screen.findChildren<QWidget*>()) {
            if (!qobject_cast<QAbstractButton*>(control) && !qobject_cast<QComboBox*>(control) &&
                control != part<QTreeView>(screen, "movementsList")) {
                continue;
            }
            if (control->isVisibleTo(&screen)) QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        }
    }

    void switchingMonthChangesTheRowsAndTheTiles() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        MovementsScreen screen(*model);
        const QJsonArray march = screen.listModel().rowsAsJson();

        part<QToolButton>(screen, "previousMonthButton")->click();
        QCOMPARE(part<QLabel>(screen, "monthTitle")->text(), QStringLiteral("febbraio 2026"));
        const QJsonArray february = screen.listModel().rowsAsJson();
        QVERIFY(february != march);
        const DateInterval month = rome.monthInterval(noon(2026, 2, 10));
        int transfers = 0;
        for (int row = 0; row < screen.listModel().rowCount(); ++row) {
            const QModelIndex index = screen.listModel().index(row);
            QVERIFY(month.contains(instantFromUnixSeconds(index.data(MonthMovementsModel::DayRole).toLongLong())));
            if (index.data(MonthMovementsModel::IsTransferRole).toBool()) {
                ++transfers;
                QCOMPARE(index.data(MonthMovementsModel::AccountTextRole).toString(),
                         QStringLiteral("Conto principale → Conto risparmi"));
                QCOMPARE(index.data(MonthMovementsModel::SignRole).toInt(), 0);
                // Alone on its day: the day nets nothing, neither gained nor spent.
                QCOMPARE(screen.listModel().index(row - 1).data(MonthMovementsModel::SignRole).toInt(), 0);
            }
        }
        QCOMPARE(transfers, 1);  // the month's saving, on the 28th
        // A past month has no forecast of its end.
        QVERIFY(!screen.findChild<SummaryTile*>(QStringLiteral("forecastTile"))->isVisibleTo(&screen));

        auto* back = part<QPushButton>(screen, "currentMonthButton");
        QVERIFY(!back->isHidden());
        back->click();
        QVERIFY(back->isHidden());
        QCOMPARE(screen.listModel().rowsAsJson(), march);

        // A month with nothing in it says so and offers to add.
        part<QToolButton>(screen, "nextMonthButton")->click();
        QCOMPARE(part<QStackedWidget>(screen, "movementsPages")->currentWidget()->objectName(),
                 QStringLiteral("emptyMonth"));
        QSignalSpy added(&screen, &MovementsScreen::newRequested);
        part<QPushButton>(screen, "emptyMonthAddButton")->click();
        QCOMPARE(added.count(), 1);
    }

    void accountFilterNarrowsTheRows() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        model->showPreviousMonth();  // the saving reaches the other account on the 28th
        MovementsScreen screen(*model);
        const int everything = screen.listModel().movementCount();

        auto* filter = part<QComboBox>(screen, "accountFilter");
        QVERIFY(!filter->isHidden());
        const int savings = filter->findData(QStringLiteral("risparmi"));
        QVERIFY(savings > 0);
        filter->setCurrentIndex(savings);
        Q_EMIT filter->activated(savings);
        QCOMPARE(model->selectedAccountID(), std::optional<std::string>("risparmi"));

        const auto rows = movementRows(screen.listModel());
        QVERIFY(!rows.empty());
        QVERIFY(int(rows.size()) < everything);
        for (int row : rows) {
            const Transaction& movement = *model->ledger().transaction(*screen.listModel().transactionID(row));
            QVERIFY(movement.accountID == "risparmi" || movement.transferToAccountID == "risparmi");
        }

        filter->setCurrentIndex(0);
        Q_EMIT filter->activated(0);
        QCOMPARE(model->selectedAccountID(), std::nullopt);
        QCOMPARE(screen.listModel().movementCount(), everything);
    }

    void deletingTheSelectedRowsIsUndoneAsOne() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        MovementsScreen screen(*model);
        screen.resize(1280, 800);
        screen.show();
        auto* list = part<QTreeView>(screen, "movementsList");
        const auto rows = movementRows(screen.listModel());
        const QModelIndex first = screen.listModel().index(rows[0]);
        const QModelIndex third = screen.listModel().index(rows[2]);
        list->selectionModel()->select(QItemSelection(first, third), QItemSelectionModel::ClearAndSelect);
        const std::vector<Uuid> chosen = screen.selectedTransactionIDs();
        QCOMPARE(chosen.size(), std::size_t(3));  // the header between them is not selectable
        const QJsonArray before = screen.listModel().rowsAsJson();

        list->setFocus();
        QTest::keyClick(list, Qt::Key_Delete);
        for (const Uuid& id : chosen) {
            QCOMPARE(screen.listModel().rowOf(id), -1);
            QVERIFY(!model->ledger().transaction(id));
        }
        QCOMPARE(model->undoTitle(), QStringLiteral("Annulla Elimina movimenti"));
        model->undo();
        QCOMPARE(screen.listModel().rowsAsJson(), before);

        // Nothing selected, nothing deleted.
        list->clearSelection();
        const auto revision = model->ledgerRevision();
        screen.deleteSelected();
        QCOMPARE(model->ledgerRevision(), revision);
    }

    void duplicatingSelectsTheCopyAndEnterEdits() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        MovementsScreen screen(*model);
        screen.resize(1280, 800);
        screen.show();
        auto* list = part<QTreeView>(screen, "movementsList");
        const int row = movementRows(screen.listModel()).front();
        const Uuid original = *screen.listModel().transactionID(row);
        list->setCurrentIndex(screen.listModel().index(row));

        QSignalSpy edits(&screen, &MovementsScreen::editRequested);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(edits.count(), 1);
        QCOMPARE(edits.front().front().value<Uuid>(), original);

        const int before = screen.listModel().movementCount();
        screen.duplicateSelected();
        QCOMPARE(screen.listModel().movementCount(), before + 1);
        const auto selected = screen.selectedTransactionIDs();
        QCOMPARE(selected.size(), std::size_t(1));
        QVERIFY(selected.front() != original);
        QCOMPARE(model->ledger().transaction(selected.front())->amount, model->ledger().transaction(original)->amount);
    }

    void emptyLedgerShowsTheStartCardAndItsDemoFillsTheList() {
        Workplace place;
        auto model = place.model();
        MovementsScreen screen(*model);
        auto* pages = part<QStackedWidget>(screen, "movementsPages");
        QCOMPARE(pages->currentWidget()->objectName(), QStringLiteral("startCard"));
        QVERIFY(part<QWidget>(screen, "summaryTiles")->isHidden());

        QSignalSpy added(&screen, &MovementsScreen::newRequested);
        QSignalSpy imported(&screen, &MovementsScreen::importRequested);
        part<QPushButton>(screen, "startAddButton")->click();
        part<QPushButton>(screen, "startImportButton")->click();
        QCOMPARE(added.count(), 1);
        QCOMPARE(added.front().front().value<TransactionKind>(), TransactionKind::expense);
        QCOMPARE(imported.count(), 1);

        part<QPushButton>(screen, "startDemoButton")->click();
        QVERIFY(model->isDemo());
        QCOMPARE(pages->currentWidget()->objectName(), QStringLiteral("movementsList"));
        QVERIFY(screen.listModel().movementCount() > 0);
        QVERIFY(!part<QWidget>(screen, "summaryTiles")->isHidden());
    }

    void dismissedAlertGoesForGood() {
        Workplace place;
        auto model = place.model();
        // The same charge twice on one day is reported as a possible duplicate.
        model->apply(QStringLiteral("Aggiungi movimento"), [](Ledger& ledger) {
            for (int copy = 0; copy < 2; ++copy) {
                Transaction charge;
                charge.id = Uuid::random();
                charge.amount = Decimal(49);
                charge.date = noon(2026, 3, 16);
                charge.categoryID = "spesa";
                charge.note = "ESSELUNGA MILANO";
                ledger.add(charge);
            }
        });
        QVERIFY(!model->alerts().empty());
        MovementsScreen screen(*model);
        auto* banner = part<QWidget>(screen, "alertsBanner");
        QVERIFY(!banner->isHidden());
        const auto buttons = banner->findChildren<QPushButton*>(QStringLiteral("dismissAlertButton"));
        QCOMPARE(std::size_t(buttons.size()), model->alerts().size());
        const std::string id = model->alerts().front().id;

        buttons.front()->click();
        QVERIFY(model->ledger().data().dismissedAlerts.count(id) == 1);
        for (const SmartAlert& alert : model->alerts()) QVERIFY(alert.id != id);
        QCOMPARE(banner->isHidden(), model->alerts().empty());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // the old rows go
        QCOMPARE(std::size_t(banner->findChildren<QPushButton*>(QStringLiteral("dismissAlertButton")).size()),
                 model->alerts().size());
    }

    void longMonthIsReadOnceWithItsMarkers() {
        Workplace place;
        auto model = place.model();
        const Person friendOf{Uuid::random(), "Giulia"};
        std::vector<Transaction> movements;
        for (int index = 0; index < 10'000; ++index) {
            Transaction made;
            made.id = Uuid::random();
            made.amount = Decimal(1 + index % 90);
            made.date = noon(2026, 3, 1 + index % 18);
            made.categoryID = "spesa";
            made.note = "Mercato " + std::to_string(index);
            movements.push_back(made);
        }
        movements[0].attachments.push_back({Uuid::random(), "scontrino.pdf", "A.pdf", 1200, noon(2026, 3, 1)});
        movements[1].shares.push_back({friendOf.id, Decimal(1)});
        movements[2].categoryID = "giroconto";
        movements[2].transferToAccountID = "carta";
        model->apply(QStringLiteral("Importa movimenti"), [&](Ledger& ledger) {
            LedgerData data = ledger.data();
            data.accounts.push_back({"carta", "Carta", "creditcard", {}, {}});
            data.people.push_back(friendOf);
            data.transactions = movements;
            ledger = Ledger(std::move(data));
        });

        QElapsedTimer clock;
        clock.start();
        MovementsScreen screen(*model);
        screen.resize(1280, 800);
        screen.show();
        QVERIFY(QTest::qWaitForWindowExposed(&screen));
        auto* list = part<QTreeView>(screen, "movementsList");
        list->scrollToBottom();
        QVERIFY(!list->viewport()->grab().isNull());
        // Generous for a shared machine; a row or a banner line per paint or per alert takes seconds.
        QVERIFY2(clock.elapsed() < 5000, qPrintable(QStringLiteral("%1 ms").arg(clock.elapsed())));
        // Every "Mercato N" of the same amount looks charged twice: the banner keeps to a few.
        QVERIFY(model->alerts().size() > 4);
        QCOMPARE(screen.findChildren<QPushButton*>(QStringLiteral("dismissAlertButton")).size(), 4);
        QVERIFY(screen.findChild<QLabel*>(QStringLiteral("moreAlerts")));

        const MonthMovementsModel& rows = screen.listModel();
        QCOMPARE(rows.movementCount(), 10'000);
        QCOMPARE(rows.rowCount(), 10'000 + 18);
        const auto roleOf = [&](std::size_t movement, int role) {
            return rows.index(rows.rowOf(movements[movement].id)).data(role);
        };
        QVERIFY(roleOf(0, MonthMovementsModel::HasAttachmentsRole).toBool());
        QVERIFY(!roleOf(0, MonthMovementsModel::IsSharedRole).toBool());
        QVERIFY(roleOf(1, MonthMovementsModel::IsSharedRole).toBool());
        QCOMPARE(roleOf(2, MonthMovementsModel::AccountTextRole).toString(), QStringLiteral("Conto principale → Carta"));
        QCOMPARE(roleOf(3, MonthMovementsModel::AccountTextRole).toString(), QStringLiteral("Conto principale"));
        QCOMPARE(roleOf(3, Qt::AccessibleTextRole).toString(),
                 QStringLiteral("Spesa alimentare, Mercato 3, Conto principale, ") +
                     movementAmountText(Decimal(4), TransactionKind::expense));

        // What does not change the month's movements leaves the rows as they are.
        QSignalSpy reset(&rows, &QAbstractItemModel::modelReset);
        model->postponeSalaryBanner();
        model->setSelectedAccountID(std::nullopt);
        QCOMPARE(reset.count(), 0);
        model->showPreviousMonth();
        QCOMPARE(reset.count(), 1);
    }
};

QTEST_MAIN(MovementsScreenTest)
#include "MovementsScreenTest.moc"
