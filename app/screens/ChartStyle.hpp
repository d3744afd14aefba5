#pragma once
// What every chart of the application shares: no animation, numbers written the interface
// language's way, amounts with the euro sign, and the theme's colours on the background, the
// legend and the axes.

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include <QtCharts>

#include "app/settings/ThemePalette.hpp"

namespace vantello::app {

[[nodiscard]] QChart* plainChart();
[[nodiscard]] QChartView* chartView(QChart* chart, const char* objectName, const QString& accessibleName,
                                    QWidget* parent = nullptr);
// Whole euros: "1.250 €" in Italian, "€1,250" in English.
void showEuros(QValueAxis* axis);
// The background, the legend's text and every axis of `chart` in the palette's colours.
void paintChart(QChart& chart, QChartView& view, const ThemePalette& palette);

}  // namespace vantello::app
