// The subscriptions screen on the demo ledger with a frozen day: the table, ignoring one for
// good, turning one into a recurring movement, and the core's refusal shown on the screen.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/model/SubscriptionListModel.hpp"
#include "app/screens/SubscriptionsScreen.hpp"
#include "app/settings/Language.hpp"
#include "core/planning/SubscriptionDetection.hpp"
#include "tests/app/ScreenWorkplace.hpp"

using namespace vantello;
using namespace vantello::app;
using namespace vantello::app::testing;

namespace {

template <typename Widget>
Widget* part(const QWidget& parent, const char* name) {
    auto* found = parent.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget named %s", name);
    return found;
}

void selectRow(SubscriptionsScreen& screen, int row) {
    auto* table = part<QTreeView>(screen, "subscriptionsTable");
    table->setCurrentIndex(table->model()->index(row, 0));
}

}  // namespace

class SubscriptionsScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void demoSubscriptionsAreListedWithTheirCosts() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        SubscriptionsScreen screen(*model);
        const auto detected = detectSubscriptions(model->ledger(), rome);
        QVERIFY(!detected.empty());
        QCOMPARE(part<QStackedWidget>(screen, "subscriptionsPages")->currentIndex(), 1);
        const QJsonArray rows = screen.listModel().rowsAsJson();
        QCOMPARE(rows.size(), qsizetype(detected.size()));
        const QJsonObject first = rows.first().toObject();
        QCOMPARE(first[QStringLiteral("key")].toString(), QString::fromStdString(detected.front().id));
        QCOMPARE(first[QStringLiteral("yearly")].toString(),
                 movementAmountText(detected.front().yearlyCost(), TransactionKind::expense));
        QCOMPARE(first[QStringLiteral("next")].toString(), dayText(detected.front().nextExpected, rome));
        QVERIFY(part<QLabel>(screen, "subscriptionsTotal")->text().contains(euroText(yearlyTotal(detected))));
        // Nothing selected, nothing to act on.
        QVERIFY(!part<QPushButton>(screen, "ignoreSubscriptionButton")->isEnabled());
    }

    void ignoredSubscriptionLeavesTheListForGood() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        SubscriptionsScreen screen(*model);
        const int before = screen.listModel().rowCount();
        selectRow(screen, 0);
        const std::string key = screen.listModel().subscription(0)->id;
        part<QPushButton>(screen, "ignoreSubscriptionButton")->click();

        QCOMPARE(screen.listModel().rowCount(), before - 1);
        QCOMPARE(screen.listModel().rowOf(key), -1);
        QVERIFY(model->ledger().data().ignoredSubscriptions.contains(key));
        QVERIFY(part<QLabel>(screen, "subscriptionsMessage")->isVisibleTo(&screen));
        QVERIFY(!part<QPushButton>(screen, "ignoreSubscriptionButton")->isEnabled());
        QVERIFY(part<QLabel>(screen, "subscriptionsTotal")
                    ->text()
                    .contains(euroText(yearlyTotal(detectSubscriptions(model->ledger(), rome)))));

        model->undo();
        QVERIFY(screen.listModel().rowOf(key) >= 0);
    }

    void recurringOnceThenTheCoreRefuses() {
        Workplace place;
        auto model = place.model();
        // A gym paid by hand on the 5th of every month.
        for (const auto& [year, month] : {std::pair{2025, 11}, {2025, 12}, {2026, 1}, {2026, 2}, {2026, 3}}) {
            TransactionDraft draft = model->newDraft(TransactionKind::expense);
            draft.amountText = "39,90";
            draft.note = "Palestra Fit";
            draft.date = noon(year, month, 5);
            QVERIFY(!model->saveDraft(draft));
        }
        SubscriptionsScreen screen(*model);
        QCOMPARE(screen.listModel().rowCount(), 1);
        QVERIFY(!screen.listModel().subscription(0)->isRecurring);
        QVERIFY(model->ledger().recurringRules().empty());

        selectRow(screen, 0);
        part<QPushButton>(screen, "recurringSubscriptionButton")->click();
        QCOMPARE(model->ledger().recurringRules().size(), std::size_t(1));
        QCOMPARE(model->ledger().recurringRules().front().startDate, screen.listModel().subscription(0)->nextExpected);

        // A rule is there already: the core says so on the screen and nothing changes.
        selectRow(screen, 0);
        part<QPushButton>(screen, "recurringSubscriptionButton")->click();
        QCOMPARE(model->ledger().recurringRules().size(), std::size_t(1));
        QVERIFY(!part<QLabel>(screen, "subscriptionsMessage")->text().contains(QStringLiteral("Palestra")));
    }

    void emptyLedgerSaysWhatBelongsHere() {
        Workplace place;
        auto model = place.model();
        SubscriptionsScreen screen(*model);
        QCOMPARE(part<QStackedWidget>(screen, "subscriptionsPages")->currentIndex(), 0);
    }
};

QTEST_MAIN(SubscriptionsScreenTest)
#include "SubscriptionsScreenTest.moc"
