#pragma once
// The charts of the month shown: its expenses by category as a donut (the core's slices, the
// hovered one found by the core's hit test and described beside it) with its legend, and the
// twelve months up to it as income and expense bars with the net as a line. Follows the selected
// month and account, the ledger and the theme.

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include <QPointF>
#include <QWidget>

#include "app/model/LedgerViewModel.hpp"

#include <cstddef>
#include <optional>

class QChart;
class QChartView;
class QLabel;
class QPieSeries;
class QPushButton;
class QStackedWidget;
class QToolButton;
class QTreeView;

namespace vantello::app {

class MonthSwitcher;

class ChartSlicesModel;
class ChartTrendModel;

class ChartsScreen : public QWidget {
    Q_OBJECT
public:
    explicit ChartsScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    // Where the donut lies in its view's viewport: the centre and the hole's and the ring's radii.
    struct DonutGeometry {
        QPointF centre;
        qreal innerRadius = 0;
        qreal outerRadius = 0;
    };
    [[nodiscard]] DonutGeometry donutGeometry() const;
    // The slice under a point of the donut view's viewport, as the core's hit test finds it from
    // the angle around the centre; nothing in the hole, outside the ring or without slices.
    [[nodiscard]] std::optional<std::size_t> sliceAt(const QPoint& viewportPoint) const;
    // The slice highlighted and described now (the one under the pointer).
    [[nodiscard]] std::optional<std::size_t> highlightedSlice() const { return highlighted_; }
    // Highlights the slice under the point (or none) and describes it, as a pointer move does.
    void hoverAt(const QPoint& viewportPoint);

    [[nodiscard]] ChartSlicesModel& slicesModel() const { return *slices_; }
    [[nodiscard]] ChartTrendModel& trendModel() const { return *trend_; }

Q_SIGNALS:
    // The empty month's "Aggiungi uscita".
    void newExpenseRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void refresh();
    void rebuildDonut();
    void rebuildTrend();
    void applyColours();
    void setHighlighted(std::optional<std::size_t> slice);
    void describeHighlighted();

    LedgerViewModel& model_;
    ChartSlicesModel* slices_;
    ChartTrendModel* trend_;
    MonthSwitcher* monthSwitcher_ = nullptr;
    QStackedWidget* pages_;
    QLabel* emptyText_;
    QChart* donut_;
    QChartView* donutView_;
    QPieSeries* pie_ = nullptr;
    QLabel* sliceInfo_;
    QTreeView* legend_;
    QChart* trendChart_;
    QChartView* trendView_;
    Decimal monthExpenses_;
    std::optional<std::size_t> highlighted_;
};

}  // namespace vantello::app
