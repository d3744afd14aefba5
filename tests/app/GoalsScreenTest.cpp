// The goals screen on the demo ledger with a frozen day: the cards, a contribution recorded
// through the screen, the core's messages inside the sheets, the empty state and a new goal.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QDialog>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtTest>

#include "app/model/DisplayText.hpp"
#include "app/model/GoalContributionsModel.hpp"
#include "app/model/GoalListModel.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/screens/GoalDialogs.hpp"
#include "app/screens/GoalsScreen.hpp"
#include "app/settings/Language.hpp"
#include "core/planning/GoalProgress.hpp"
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

QString cardText(const QWidget& screen, const char* name) { return part<QLabel>(screen, name)->text(); }

}  // namespace

class GoalsScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void demoGoalCardShowsWhatTheCoreDerives() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        GoalsScreen screen(*model);
        screen.resize(720, 520);
        QCOMPARE(part<QStackedWidget>(screen, "goalsPages")->currentIndex(), 1);
        QCOMPARE(screen.findChildren<QWidget*>(QStringLiteral("goalCard")).size(), 1);

        const SavingsGoal& goal = model->ledger().data().savingsGoals.front();
        const GoalProgress progress = goalProgress(goal, model->now(), rome);
        QVERIFY(cardText(screen, "goalSaved").startsWith(euroText(progress.saved)));
        QVERIFY(cardText(screen, "goalSaved").endsWith(euroText(goal.target)));
        QVERIFY(cardText(screen, "goalStatus") == goalStatusText(progress.status));
        QVERIFY(progress.monthlyAmountNeeded);
        QVERIFY(cardText(screen, "goalDetails").contains(euroText(*progress.monthlyAmountNeeded)));
        const QJsonObject row = screen.listModel().rowsAsJson().first().toObject();
        QCOMPARE(row[QStringLiteral("name")].toString(), QStringLiteral("Vacanze in Sardegna"));

    }

    void contributionThroughTheSheetChangesTheSavedAmount() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        GoalsScreen screen(*model);
        const Decimal before = model->ledger().data().savingsGoals.front().saved();

        part<QPushButton>(screen, "goalContributionsButton")->click();
        auto* sheet = part<GoalContributionDialog>(screen, "goalContributionDialog");
        QVERIFY(sheet->isVisible());
        const int recorded = sheet->contributions().rowCount();
        auto* amount = part<QLineEdit>(*sheet, "contributionAmountEdit");
        auto* error = part<QLabel>(*sheet, "goalError");

        // Text that is no amount, then a withdrawal beyond what is saved: the sheet says why.
        amount->setText(QStringLiteral("tanti"));
        part<QPushButton>(*sheet, "addContributionButton")->click();
        QVERIFY(error->isVisibleTo(sheet) && error->text().contains(QStringLiteral("tanti")));
        part<QRadioButton>(*sheet, "withdrawalRadio")->setChecked(true);
        amount->setText(QStringLiteral("99.999,00"));
        part<QPushButton>(*sheet, "addContributionButton")->click();
        QCOMPARE(error->text(), uiText("Non puoi ritirare più di quanto hai messo da parte."));
        QVERIFY(sheet->isVisible());
        QCOMPARE(model->ledger().data().savingsGoals.front().saved(), before);

        part<QRadioButton>(*sheet, "depositRadio")->setChecked(true);
        amount->setText(QStringLiteral("1.000,50"));
        QTest::keyClick(amount, Qt::Key_Return);
        QVERIFY(!error->isVisibleTo(sheet));
        const Decimal after = model->ledger().data().savingsGoals.front().saved();
        QCOMPARE(after, before + *Decimal::fromCanonical("1000.50"));
        QCOMPARE(sheet->contributions().rowCount(), recorded + 1);
        QVERIFY(cardText(screen, "goalSaved").startsWith(euroText(after)));

        // Undo takes the deposit back, and the card follows.
        model->undo();
        QVERIFY(cardText(screen, "goalSaved").startsWith(euroText(before)));
        QTest::keyClick(sheet, Qt::Key_Escape);
        QVERIFY(!sheet->isVisible());
    }

    void emptyLedgerOffersTheFirstGoal() {
        Workplace place;
        auto model = place.model();
        GoalsScreen screen(*model);
        screen.resize(640, 400);
        QCOMPARE(part<QStackedWidget>(screen, "goalsPages")->currentIndex(), 0);

        part<QPushButton>(screen, "firstGoalButton")->click();
        auto* editor = part<GoalEditor>(screen, "goalEditor");
        auto* error = part<QLabel>(*editor, "goalError");
        part<QLineEdit>(*editor, "goalTargetEdit")->setText(QStringLiteral("500"));
        part<QPushButton>(*editor, "goalSaveButton")->click();
        QCOMPARE(error->text(), uiText("Scrivi un nome per l'obiettivo."));
        QVERIFY(editor->isVisible());

        part<QLineEdit>(*editor, "goalNameEdit")->setText(QStringLiteral("  Bici nuova "));
        part<QPushButton>(*editor, "goalSaveButton")->click();
        QVERIFY(!editor->isVisible());
        QCOMPARE(model->ledger().data().savingsGoals.size(), std::size_t(1));
        QCOMPARE(model->ledger().data().savingsGoals.front().name, std::string("Bici nuova"));
        QCOMPARE(part<QStackedWidget>(screen, "goalsPages")->currentIndex(), 1);
        QCOMPARE(cardText(screen, "goalStatus"), goalStatusText(GoalStatus::noDeadline));
    }
};

QTEST_MAIN(GoalsScreenTest)
#include "GoalsScreenTest.moc"
