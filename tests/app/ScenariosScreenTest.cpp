// The scenarios screen on the demo ledger with a frozen day: the projection with and without the
// adjustments, the editor's refusals, removing adjustments, and the goals' dates.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtCharts>
#include <QtTest>

#include "app/model/LedgerViewModel.hpp"
#include "app/model/ScenarioOutlook.hpp"
#include "app/screens/ScenariosScreen.hpp"
#include "app/settings/Language.hpp"

using namespace vantello;
using namespace vantello::app;

namespace {

const Calendar rome("Europe/Rome");

Instant noon(int year, int month, int day) { return *rome.date({year, month, day}, 12); }

struct Workplace {
    QTemporaryDir home;
    std::filesystem::path folder = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};

    std::unique_ptr<LedgerViewModel> model(bool demo = true) {
        auto made = std::make_unique<LedgerViewModel>(LedgerViewModel::Setup{
            folder, std::nullopt, rome, [] { return noon(2026, 3, 18); }, &preferences, folder / "Backup"});
        if (demo) made->enterDemo();
        return made;
    }
};

template <typename Widget>
Widget* part(const QWidget& screen, const char* name) {
    auto* found = screen.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget named %s", name);
    return found;
}

void chooseKind(const QWidget& screen, ScenarioChangeKind kind) {
    auto* kinds = part<QComboBox>(screen, "scenarioChangeKind");
    kinds->setCurrentIndex(kinds->findData(static_cast<int>(kind)));
}

}  // namespace

class ScenariosScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QApplication::setOrganizationName(QStringLiteral("Vantello"));
        QApplication::setApplicationName(QStringLiteral("Vantello"));
        QSettings().remove(QStringLiteral("language"));
        installInterfaceLanguage(*QCoreApplication::instance());
    }

    void adjustmentChangesTheProjectionShown() {
        Workplace place;
        auto model = place.model();
        ScenariosScreen screen(*model);
        QCOMPARE(screen.scenarioSeries()->count(), 12);
        // Without adjustments the two lines are the same.
        QCOMPARE(screen.scenarioSeries()->points(), screen.baselineSeries()->points());
        const QPointF lastBefore = screen.scenarioSeries()->at(11);

        chooseKind(screen, ScenarioChangeKind::income);
        QTest::keyClicks(part<QLineEdit>(screen, "scenarioValue"), QStringLiteral("+10"));
        QTest::keyClick(part<QLineEdit>(screen, "scenarioValue"), Qt::Key_Return);
        QCOMPARE(model->scenarioAdjustments().size(), std::size_t{1});
        QVERIFY(screen.scenarioSeries()->at(11).y() > lastBefore.y());
        QCOMPARE(screen.baselineSeries()->at(11), lastBefore);
        const auto& result = screen.outlook().result();
        QCOMPARE(QString::fromStdString(result.projection.back().scenario.description()).toDouble(),
                 screen.scenarioSeries()->at(11).y());
        // The tiles tell the monthly savings apart.
        QVERIFY(part<QLabel>(screen, "scenarioSavingsFigure")->text() != part<QLabel>(screen, "baselineSavingsFigure")->text());

        // A new monthly expense of 1.000,00 € lowers the scenario below the baseline.
        chooseKind(screen, ScenarioChangeKind::monthlyExpense);
        part<QLineEdit>(screen, "scenarioValue")->setText(QStringLiteral("1.000,00"));
        part<QPushButton>(screen, "addAdjustmentButton")->click();
        QCOMPARE(model->scenarioAdjustments().size(), std::size_t{2});
        QVERIFY(screen.scenarioSeries()->at(11).y() < lastBefore.y());
        QCOMPARE(screen.outlook().adjustments().rowsAsJson().size(), 2);

        // Removing the first leaves the expense; clearing brings the lines together again.
        auto* list = part<QListView>(screen, "scenarioAdjustments");
        list->setCurrentIndex(list->model()->index(0, 0));
        part<QPushButton>(screen, "removeAdjustmentButton")->click();
        QCOMPARE(model->scenarioAdjustments().size(), std::size_t{1});
        QVERIFY(std::holds_alternative<ScenarioAdjustment::MonthlyExpense>(model->scenarioAdjustments().front().change));
        part<QPushButton>(screen, "clearAdjustmentsButton")->click();
        QCOMPARE(screen.scenarioSeries()->points(), screen.baselineSeries()->points());
    }

    void editorRefusesWhatItCannotRead() {
        Workplace place;
        auto model = place.model();
        ScenariosScreen screen(*model);
        auto* value = part<QLineEdit>(screen, "scenarioValue");
        auto* problem = part<QLabel>(screen, "scenarioProblem");
        for (const auto& [kind, typed] : {std::pair{ScenarioChangeKind::category, QStringLiteral("molto")},
                                         std::pair{ScenarioChangeKind::category, QStringLiteral("-150")},
                                         std::pair{ScenarioChangeKind::income, QStringLiteral("0")},
                                         std::pair{ScenarioChangeKind::monthlyExpense, QStringLiteral("-50")}}) {
            chooseKind(screen, kind);
            value->setText(typed);
            part<QPushButton>(screen, "addAdjustmentButton")->click();
            QVERIFY2(!problem->isHidden(), qPrintable(typed));
            QVERIFY(model->scenarioAdjustments().empty());
        }
        // Italian decimals, the true minus sign and a trailing percent are read.
        const auto change = scenarioChange(ScenarioChangeKind::category, "ristoranti", QStringLiteral("\u221212,5 %"));
        QVERIFY(std::holds_alternative<ScenarioAdjustment::Change>(change));
        const auto& category = std::get<ScenarioAdjustment::Category>(std::get<ScenarioAdjustment::Change>(change));
        QCOMPARE(category.percent, -0.125);
    }

    void goalsShowTheirDatesAndAnEmptyLedgerSaysWhy() {
        Workplace place;
        auto model = place.model();
        ScenariosScreen screen(*model);
        const QJsonArray goals = screen.outlook().goals().rowsAsJson();
        QVERIFY(!goals.isEmpty());
        QCOMPARE(goals.size(), static_cast<int>(model->ledger().data().savingsGoals.size()));
        // More income reaches a goal no later than before.
        addScenarioAdjustment(*model, ScenarioAdjustment::Income{0.5});
        for (const auto& impact : screen.outlook().result().goals)
            if (impact.baselineDate) QVERIFY(impact.scenarioDate && *impact.scenarioDate <= *impact.baselineDate);

        Workplace emptyPlace;
        auto empty = emptyPlace.model(false);
        ScenariosScreen nothing(*empty);
        QVERIFY(part<QLabel>(nothing, "scenarioEmpty")->isVisibleTo(&nothing));
    }

    // A hundred thousand movements: the projection is worked out once, quickly.
    void largeLedgerOpensQuickly() {
        Workplace place;
        auto model = place.model();
        LedgerData data = model->ledger().data();
        for (int index = 0; index < 100'000; ++index) {
            Transaction made;
            made.id = Uuid::random();
            made.amount = *Decimal::fromCanonical(std::to_string(5 + index % 200));
            made.date = noon(2026, 3, 18) - std::chrono::hours(2 * index);
            made.categoryID = "spesa";
            data.transactions.push_back(made);
        }
        model->apply(QStringLiteral("Prova"), [&](Ledger& ledger) { ledger = Ledger(data); });
        QElapsedTimer timer;
        timer.start();
        ScenariosScreen screen(*model);
        const qint64 opening = timer.elapsed();
        qInfo("opening %lld ms", opening);
        QVERIFY(opening < 40);  // 16 ms is the aim; the margin absorbs a busy machine
        QCOMPARE(screen.scenarioSeries()->count(), 12);
    }
};

QTEST_MAIN(ScenariosScreenTest)
#include "ScenariosScreenTest.moc"
