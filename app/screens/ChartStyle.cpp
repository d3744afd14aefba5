#include "app/screens/ChartStyle.hpp"

#include "app/model/DisplayText.hpp"
#include "app/settings/Language.hpp"

namespace vantello::app {

QChart* plainChart() {
    auto* chart = new QChart;
    chart->setAnimationOptions(QChart::NoAnimation);
    chart->setBackgroundRoundness(0);
    chart->setMargins(QMargins(4, 4, 4, 4));
    chart->setPlotAreaBackgroundVisible(false);
    chart->setLocale(QLocale(QString::fromStdString(interfaceLocaleName())));
    chart->setLocalizeNumbers(true);
    return chart;
}

QChartView* chartView(QChart* chart, const char* objectName, const QString& accessibleName, QWidget* parent) {
    auto* view = new QChartView(chart, parent);
    view->setObjectName(QString::fromLatin1(objectName));
    view->setAccessibleName(accessibleName);
    view->setRenderHint(QPainter::Antialiasing);
    view->setFrameShape(QFrame::NoFrame);
    view->setFocusPolicy(Qt::NoFocus);
    return view;
}

void showEuros(QValueAxis* axis) {
    // A printf format whose number the chart writes in its locale, separators and all.
    axis->setLabelFormat(uiText("%.0f €"));
}

void paintChart(QChart& chart, QChartView& view, const ThemePalette& palette) {
    chart.setBackgroundBrush(palette.cardBackground);
    chart.setBackgroundPen(Qt::NoPen);
    chart.legend()->setLabelColor(palette.primaryText);
    for (QAbstractAxis* axis : chart.axes()) {
        axis->setLabelsColor(palette.primaryText);
        axis->setTitleBrush(palette.primaryText);
        axis->setLinePenColor(palette.separator);
        axis->setGridLineColor(palette.separator);
    }
    view.setBackgroundBrush(palette.cardBackground);
}

}  // namespace vantello::app
