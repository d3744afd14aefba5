#pragma once
// The item models of the charts screen: the donut's slices with their legend texts, and the
// twelve-month trend of income, expenses and net. Both are filled from the month's summary the
// core works out, and the colours each slice is drawn in follow the theme.

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include <QAbstractTableModel>
#include <QColor>
#include <QJsonArray>

#include "app/settings/ThemePalette.hpp"
#include "core/analysis/MonthSummary.hpp"

#include <vector>

namespace vantello::app {

// The six colours of the donut, in slice order; the sixth, the folded "others" slice's place,
// is a neutral one. Lighter on a dark window so that they stand out from the card.
[[nodiscard]] std::vector<QColor> chartSliceColours(const ThemePalette& palette);

// "34 %": a share (0...1) as a whole percentage in the interface language.
[[nodiscard]] QString shareText(double share);

// The donut's slices, largest first and "others" last, one row each: the legend's columns are
// the name with the slice's colour, the total and the share.
class ChartSlicesModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { nameColumn, totalColumn, shareColumn, columnCount_ };
    enum Role { identityRole = Qt::UserRole + 1 };

    explicit ChartSlicesModel(QObject* parent = nullptr);

    void setSlices(const std::vector<CategorySlice>& slices);
    void setColours(std::vector<QColor> colours);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    [[nodiscard]] const std::vector<CategorySlice>& slices() const { return slices_; }
    // The slices' sizes in order, as the donut draws them and the hit test weighs them.
    [[nodiscard]] std::vector<double> sizes() const;
    [[nodiscard]] QString nameAt(int row) const;
    [[nodiscard]] QColor colourAt(int row) const;
    // One object per slice: identity, name, total, share, colour.
    [[nodiscard]] QJsonArray rowsAsJson() const;

private:
    std::vector<CategorySlice> slices_;
    std::vector<QColor> colours_;
};

// The trend's months, oldest first: month, income, expenses and net (income − expenses).
class ChartTrendModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { monthColumn, incomeColumn, expensesColumn, netColumn, columnCount_ };

    ChartTrendModel(const Calendar& calendar, QObject* parent = nullptr);

    void setTrend(const std::vector<MonthTotals>& trend);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    [[nodiscard]] const std::vector<MonthTotals>& trend() const { return trend_; }
    // The month's short name for the chart's axis ("mar", "Mar").
    [[nodiscard]] QString shortMonthAt(int row) const;
    [[nodiscard]] Decimal netAt(int row) const;
    // One object per month: month (YYYY-MM), income, expenses, net as canonical decimals.
    [[nodiscard]] QJsonArray rowsAsJson() const;

private:
    const Calendar& calendar_;
    std::vector<MonthTotals> trend_;
};

}  // namespace vantello::app
