#pragma once
// The texts of the month screen's summary tiles, worked out from the month's summary: income,
// expenses and net against the month before, and for the month in progress the forecast of its
// end and the lowest balance ahead.

#include "core/analysis/MonthSummary.hpp"
#include "core/base/Calendar.hpp"

#include <QString>

#include <vector>

namespace vantello::app {

struct MonthTile {
    // The colour the figure is drawn in; the figure always carries its sign as well.
    enum class Tone { neutral, income, expense };

    QString name;  // stable, for object names: "income", "expenses", "net", "forecast", "lowestBalance"
    QString label;
    QString figure;
    QString context;
    Tone tone = Tone::neutral;
    QString infoTitle;  // set on a tile that explains itself on request
    QString infoText;
};

[[nodiscard]] std::vector<MonthTile> monthTiles(const MonthSummary& summary, const Calendar& calendar);

}  // namespace vantello::app
