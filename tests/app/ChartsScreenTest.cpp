// The charts screen on the demo ledger with a frozen day: the donut and its legend from the
// month's slices, the hovered slice as the core's hit test finds it, the trend and the month
// choice, the empty month.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QJsonObject>
#include <QLabel>
#include <QMouseEvent>
#include <QSettings>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtCharts>
#include <QtTest>

#include "app/model/ChartModels.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/screens/ChartsScreen.hpp"
#include "app/settings/Language.hpp"
#include "core/analysis/PieHitTest.hpp"
#include "tests/app/ScreenWorkplace.hpp"

#include <cmath>
#include <numbers>

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

void hover(QWidget* viewport, QPoint point) {
    QMouseEvent move(QEvent::MouseMove, point, viewport->mapToGlobal(point), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &move);
}

}  // namespace

class ChartsScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void demoMonthShowsSlicesLegendAndTrend() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        ChartsScreen screen(*model);
        const MonthSummary summary = model->monthSummary();
        QVERIFY(!summary.slices.empty());

        QCOMPARE(part<QLabel>(screen, "monthTitle")->text(), QStringLiteral("marzo 2026"));
        QCOMPARE(part<QStackedWidget>(screen, "categoryPages")->currentIndex(), 0);
        const QJsonArray legend = screen.slicesModel().rowsAsJson();
        QCOMPARE(legend.size(), static_cast<qsizetype>(summary.slices.size()));
        QCOMPARE(legend[0].toObject()[QStringLiteral("identity")].toString(),
                 QString::fromStdString(summary.slices[0].identity()));
        // Every slice has a colour of its own.
        QSet<QString> colours;
        for (const auto& row : legend) colours.insert(row.toObject()[QStringLiteral("colour")].toString());
        QCOMPARE(colours.size(), legend.size());

        const QJsonArray trend = screen.trendModel().rowsAsJson();
        QCOMPARE(trend.size(), 12);
        QCOMPARE(trend.last().toObject()[QStringLiteral("month")].toString(), QStringLiteral("2026-03"));
        QCOMPARE(trend.last().toObject()[QStringLiteral("net")].toString(),
                 QString::fromStdString(summary.totals.net().description()));
        auto* bars = qobject_cast<QBarSeries*>(part<QChartView>(screen, "trendChart")->chart()->series().value(0));
        QVERIFY(bars != nullptr);
        QCOMPARE(bars->barSets().value(1)->at(11), summary.totals.expenses.toDouble());

        // The month buttons move the model's month, and the screen follows it.
        QTest::mouseClick(part<QToolButton>(screen, "previousMonthButton"), Qt::LeftButton);
        QCOMPARE(part<QLabel>(screen, "monthTitle")->text(), QStringLiteral("febbraio 2026"));
        QCOMPARE(screen.trendModel().rowsAsJson().last().toObject()[QStringLiteral("month")].toString(),
                 QStringLiteral("2026-02"));
        QCOMPARE(static_cast<std::size_t>(screen.slicesModel().rowCount()), model->monthSummary().slices.size());
        QTest::mouseClick(part<QToolButton>(screen, "nextMonthButton"), Qt::LeftButton);
        QCOMPARE(part<QLabel>(screen, "monthTitle")->text(), QStringLiteral("marzo 2026"));
    }

    void hoveredSliceIsTheCoreHitTests() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        ChartsScreen screen(*model);
        screen.resize(1100, 800);
        screen.show();
        QVERIFY(QTest::qWaitForWindowExposed(&screen));
        QWidget* viewport = part<QChartView>(screen, "donutChart")->viewport();

        const auto& slices = model->monthSummary().slices;
        QVERIFY(slices.size() >= 3);
        std::vector<double> sizes;
        double whole = 0;
        for (const auto& slice : slices) {
            sizes.push_back(slice.total.toDouble());
            whole += sizes.back();
        }
        const auto donut = screen.donutGeometry();
        QVERIFY(donut.outerRadius > donut.innerRadius && donut.innerRadius > 20);
        const QImage drawn = viewport->grab().toImage();

        // The middle of the first, the second and the last slice, halfway across the ring.
        const std::vector<std::size_t> probes{0, 1, slices.size() - 1};
        for (const std::size_t probe : probes) {
            double before = 0;
            for (std::size_t index = 0; index < probe; ++index) before += sizes[index];
            const double angle = 2 * std::numbers::pi * (before + sizes[probe] / 2) / whole;
            const double radius = (donut.innerRadius + donut.outerRadius) / 2;
            const QPoint point(static_cast<int>(std::lround(donut.centre.x() + radius * std::sin(angle))),
                               static_cast<int>(std::lround(donut.centre.y() - radius * std::cos(angle))));
            const qreal dx = point.x() - donut.centre.x();
            const qreal dy = point.y() - donut.centre.y();
            QCOMPARE(PieHitTest::index(std::atan2(dx, -dy), sizes), std::optional<std::size_t>(probe));
            QCOMPARE(screen.sliceAt(point), std::optional<std::size_t>(probe));
            // What is drawn there is that slice.
            const QColor expected = screen.slicesModel().colourAt(static_cast<int>(probe));
            const qreal ratio = viewport->devicePixelRatioF();
            const QColor seen = drawn.pixelColor(QPointF(point * ratio).toPoint());
            QVERIFY2(std::abs(seen.red() - expected.red()) < 12 && std::abs(seen.green() - expected.green()) < 12 &&
                         std::abs(seen.blue() - expected.blue()) < 12,
                     qPrintable(seen.name() + QStringLiteral(" is not ") + expected.name()));

            hover(viewport, point);
            QCOMPARE(screen.highlightedSlice(), std::optional<std::size_t>(probe));
            QVERIFY(part<QLabel>(screen, "sliceInfo")->text().startsWith(screen.slicesModel().nameAt(static_cast<int>(probe))));
        }
        // The hole and the outside highlight nothing.
        hover(viewport, donut.centre.toPoint());
        QCOMPARE(screen.highlightedSlice(), std::nullopt);
        hover(viewport, (donut.centre + QPointF(donut.outerRadius + 4, 0)).toPoint());
        QCOMPARE(screen.highlightedSlice(), std::nullopt);
    }

    void monthWithoutExpensesSaysWhatBelongsThere() {
        Workplace place;
        auto model = place.model();
        ChartsScreen screen(*model);
        QCOMPARE(part<QStackedWidget>(screen, "categoryPages")->currentIndex(), 1);
        QCOMPARE(screen.sliceAt(QPoint(10, 10)), std::nullopt);
        QSignalSpy asked(&screen, &ChartsScreen::newExpenseRequested);
        part<QPushButton>(screen, "chartsAddExpenseButton")->click();
        QCOMPARE(asked.count(), 1);
        model->enterDemo();
        QCOMPARE(part<QStackedWidget>(screen, "categoryPages")->currentIndex(), 0);
    }
};

QTEST_MAIN(ChartsScreenTest)
#include "ChartsScreenTest.moc"
