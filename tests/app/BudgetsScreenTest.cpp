// The budgets screen on a ledger with a frozen day: the budgets with their levels and the
// spending outside them, setting a budget through the sheet (and the sheet's messages), removing
// one, and undo.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QComboBox>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtTest>

#include "app/model/BudgetListModel.hpp"
#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/screens/BudgetDialog.hpp"
#include "app/screens/BudgetsScreen.hpp"
#include "app/settings/Language.hpp"
#include "tests/app/ScreenWorkplace.hpp"

using namespace vantello;
using namespace vantello::app;
using namespace vantello::app::testing;

namespace {

Transaction expense(const char* amount, Instant date, const char* category) {
    Transaction made;
    made.id = Uuid::random();
    made.amount = *Decimal::fromCanonical(amount);
    made.date = date;
    made.categoryID = category;
    made.accountID = "principale";
    return made;
}

template <typename Widget>
Widget* part(const QWidget& screen, const char* name) {
    auto* found = screen.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget named %s", name);
    return found;
}

// Spesa 240 and Ristoranti 90 in March; a budget of 300 on Spesa.
void fillMarch(LedgerViewModel& model) {
    model.apply(QStringLiteral("Prepara"), [](Ledger& ledger) {
        ledger.add(expense("240", noon(2026, 3, 3), "spesa"));
        ledger.add(expense("90", noon(2026, 3, 5), "ristoranti"));
        ledger.setBudget("spesa", Decimal(300));
    });
}

}  // namespace

class BudgetsScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void listsBudgetsWithLevelsAndTheRestApart() {
        Workplace place;
        auto model = place.model();
        BudgetsScreen screen(*model);
        QCOMPARE(part<QStackedWidget>(screen, "budgetPages")->currentIndex(), 1);

        fillMarch(*model);
        QCOMPARE(part<QStackedWidget>(screen, "budgetPages")->currentIndex(), 0);
        const QJsonArray rows = screen.listModel().rowsAsJson();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows[0].toObject()[QStringLiteral("category")].toString(), QStringLiteral("spesa"));
        QCOMPARE(rows[0].toObject()[QStringLiteral("spent")].toString(), QStringLiteral("240"));
        QCOMPARE(rows[0].toObject()[QStringLiteral("level")].toString(), QStringLiteral("warning"));
        QCOMPARE(part<QLabel>(screen, "unbudgetedSpending")->text(), QStringLiteral("Spese senza budget: ") + euroText(Decimal(90)));

        // The month before has the budget but nothing spent against it.
        model->showPreviousMonth();
        QCOMPARE(screen.listModel().rowsAsJson()[0].toObject()[QStringLiteral("spent")].toString(), QStringLiteral("0"));
        QCOMPARE(screen.listModel().rowsAsJson()[0].toObject()[QStringLiteral("level")].toString(), QStringLiteral("onTrack"));
    }

    void settingBudgetThroughTheSheetChangesModelAndList() {
        Workplace place;
        auto model = place.model();
        fillMarch(*model);
        BudgetsScreen screen(*model);
        screen.show();

        BudgetDialog* sheet = screen.openBudgetDialog("ristoranti");
        QPointer<BudgetDialog> watched(sheet);
        auto* amount = part<QLineEdit>(*sheet, "budgetAmount");
        auto* error = part<QLabel>(*sheet, "budgetError");
        QVERIFY(amount->text().isEmpty());

        // Bad text: the sheet says why and stays open, and the ledger is as it was.
        for (const char* typed : {"", "dodici", "0"}) {
            amount->setText(QString::fromUtf8(typed));
            QTest::mouseClick(part<QPushButton>(*sheet, "budgetSaveButton"), Qt::LeftButton);
            QVERIFY(!watched.isNull() && sheet->isVisible());
            QVERIFY(!error->isHidden() && !error->text().isEmpty());
        }
        QVERIFY(!model->ledger().budgets().contains("ristoranti"));

        // Typed the Italian way, confirmed with Enter.
        amount->setText(QStringLiteral("80,50"));
        QTest::keyClick(amount, Qt::Key_Return);
        QTRY_VERIFY(watched.isNull());
        QCOMPARE(model->ledger().budgets().at("ristoranti"), *Decimal::fromCanonical("80.5"));
        const int row = screen.listModel().rowOf("ristoranti");
        QVERIFY(row >= 0);
        QCOMPARE(screen.listModel().rowsAsJson()[row].toObject()[QStringLiteral("level")].toString(), QStringLiteral("over"));
        QCOMPARE(screen.selectedCategoryID(), std::string("ristoranti"));
        QCOMPARE(part<QLabel>(screen, "unbudgetedSpending")->text(), QStringLiteral("Spese senza budget: ") + euroText(Decimal()));

        // Editing shows the amount set, the Italian way.
        sheet = screen.openBudgetDialog("ristoranti");
        QCOMPARE(part<QLineEdit>(*sheet, "budgetAmount")->text(), QStringLiteral("80,50"));
        QTest::keyClick(part<QLineEdit>(*sheet, "budgetAmount"), Qt::Key_Escape);
        QCOMPARE(model->ledger().budgets().at("ristoranti"), *Decimal::fromCanonical("80.5"));

        // Removing it, and undo bringing it back.
        QVERIFY(part<QPushButton>(screen, "removeBudgetButton")->isEnabled());
        QTest::mouseClick(part<QPushButton>(screen, "removeBudgetButton"), Qt::LeftButton);
        QVERIFY(!model->ledger().budgets().contains("ristoranti"));
        QCOMPARE(screen.listModel().rowOf("ristoranti"), -1);
        QVERIFY(!part<QPushButton>(screen, "removeBudgetButton")->isEnabled());
        model->undo();
        QVERIFY(screen.listModel().rowOf("ristoranti") >= 0);
    }
};

QTEST_MAIN(BudgetsScreenTest)
#include "BudgetsScreenTest.moc"
