#include "app/model/ChartModels.hpp"

#include "app/model/DisplayText.hpp"
#include "app/settings/Language.hpp"

#include <QDate>
#include <QJsonObject>
#include <QLocale>

#include <string>
#include <variant>

namespace vantello::app {

namespace {

QLocale interfaceLocale() { return QLocale(QString::fromStdString(interfaceLocaleName())); }

QString sliceName(const CategorySlice& slice) {
    if (const auto* category = std::get_if<TransactionCategory>(&slice.content)) {
        return QString::fromStdString(category->name);
    }
    const auto count = std::to_string(std::get<CategorySlice::Others>(slice.content).count);
    return uiText("Altre ({count})", {{"count", count}});
}

QString monthKey(Instant month, const Calendar& calendar) {
    const CivilDate day = calendar.civilDate(month);
    return QDate(day.year, day.month, 1).toString(QStringLiteral("yyyy-MM"));
}

}  // namespace

std::vector<QColor> chartSliceColours(const ThemePalette& palette) {
    const bool dark = palette.windowBackground.lightness() < 128;
    if (palette == ThemePalette::solarizedLight() || palette == ThemePalette::solarizedDark()) {
        // Solarized's own accents (blue, yellow, cyan, magenta, violet), leaving its green and red
        // to income and expenses; "others" in its grey for secondary content.
        return {QColor(0x26, 0x8b, 0xd2), QColor(0xb5, 0x89, 0x00), QColor(0x2a, 0xa1, 0x98),
                QColor(0xd3, 0x36, 0x82), QColor(0x6c, 0x71, 0xc4), dark ? QColor(0x58, 0x6e, 0x75) : QColor(0x93, 0xa1, 0xa1)};
    }
    // Hues far enough apart to be told apart also by most colour-blind readers.
    static const std::vector<QColor> base{QColor(0x3b, 0x82, 0xc4), QColor(0xe0, 0x8a, 0x1e), QColor(0x2e, 0x9e, 0x7a),
                                          QColor(0xc2, 0x4f, 0x8a), QColor(0x8c, 0x6b, 0xc9)};
    std::vector<QColor> colours;
    for (const QColor& colour : base) colours.push_back(dark ? colour.lighter(125) : colour);
    colours.push_back(dark ? QColor(0x8a, 0x8f, 0x98) : QColor(0x9a, 0x9f, 0xa8));
    return colours;
}

QString shareText(double share) {
    const QLocale locale = interfaceLocale();
    // Italian sets the sign apart ("46 %"), English does not ("46%").
    const QString sign = locale.language() == QLocale::Italian ? QStringLiteral("\u00a0%") : QStringLiteral("%");
    return locale.toString(share * 100, 'f', 0) + sign;
}

// ---- slices

ChartSlicesModel::ChartSlicesModel(QObject* parent) : QAbstractTableModel(parent) {}

void ChartSlicesModel::setSlices(const std::vector<CategorySlice>& slices) {
    if (slices == slices_) return;
    beginResetModel();
    slices_ = slices;
    endResetModel();
}

void ChartSlicesModel::setColours(std::vector<QColor> colours) {
    colours_ = std::move(colours);
    if (!slices_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::DecorationRole});
}

int ChartSlicesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(slices_.size());
}

int ChartSlicesModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columnCount_; }

QVariant ChartSlicesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const CategorySlice& slice = slices_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DisplayRole:
            switch (index.column()) {
                case nameColumn: return sliceName(slice);
                case totalColumn: return euroText(slice.total);
                case shareColumn: return shareText(slice.share);
                default: return {};
            }
        case Qt::DecorationRole:
            if (index.column() == nameColumn) return colourAt(index.row());
            return {};
        case Qt::TextAlignmentRole:
            if (index.column() == nameColumn) return QVariant::fromValue(Qt::AlignLeading | Qt::AlignVCenter);
            return QVariant::fromValue(Qt::AlignTrailing | Qt::AlignVCenter);
        case Qt::AccessibleTextRole:
            return sliceName(slice) + QStringLiteral(": ") + euroText(slice.total) + QStringLiteral(", ") +
                   shareText(slice.share);
        case identityRole: return QString::fromStdString(slice.identity());
        default: return {};
    }
}

QVariant ChartSlicesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(section == nameColumn ? Qt::AlignLeading | Qt::AlignVCenter
                                                         : Qt::AlignTrailing | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) return {};
    switch (section) {
        case nameColumn: return uiText("Categoria");
        case totalColumn: return uiText("Totale");
        case shareColumn: return uiText("Quota");
        default: return {};
    }
}

std::vector<double> ChartSlicesModel::sizes() const {
    std::vector<double> sizes;
    sizes.reserve(slices_.size());
    for (const CategorySlice& slice : slices_) sizes.push_back(slice.total.toDouble());
    return sizes;
}

QString ChartSlicesModel::nameAt(int row) const {
    if (row < 0 || row >= rowCount()) return {};
    return sliceName(slices_[static_cast<std::size_t>(row)]);
}

QColor ChartSlicesModel::colourAt(int row) const {
    if (colours_.empty() || row < 0 || row >= rowCount()) return {};
    const auto& slice = slices_[static_cast<std::size_t>(row)];
    // The folded slice always takes the neutral colour, whatever its position.
    if (std::holds_alternative<CategorySlice::Others>(slice.content)) return colours_.back();
    return colours_[static_cast<std::size_t>(row) % (colours_.size() - 1)];
}

QJsonArray ChartSlicesModel::rowsAsJson() const {
    QJsonArray rows;
    for (int row = 0; row < rowCount(); ++row) {
        const CategorySlice& slice = slices_[static_cast<std::size_t>(row)];
        rows.append(QJsonObject{{QStringLiteral("identity"), QString::fromStdString(slice.identity())},
                                {QStringLiteral("name"), nameAt(row)},
                                {QStringLiteral("total"), euroText(slice.total)},
                                {QStringLiteral("share"), shareText(slice.share)},
                                {QStringLiteral("colour"), colourAt(row).name()}});
    }
    return rows;
}

// ---- trend

ChartTrendModel::ChartTrendModel(const Calendar& calendar, QObject* parent)
    : QAbstractTableModel(parent), calendar_(calendar) {}

void ChartTrendModel::setTrend(const std::vector<MonthTotals>& trend) {
    if (trend == trend_) return;
    beginResetModel();
    trend_ = trend;
    endResetModel();
}

int ChartTrendModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(trend_.size());
}

int ChartTrendModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columnCount_; }

Decimal ChartTrendModel::netAt(int row) const {
    const MonthTotals& month = trend_[static_cast<std::size_t>(row)];
    return PeriodTotals{month.income, month.expenses}.net();
}

QString ChartTrendModel::shortMonthAt(int row) const {
    const CivilDate day = calendar_.civilDate(trend_[static_cast<std::size_t>(row)].month);
    return interfaceLocale().toString(QDate(day.year, day.month, 1), QStringLiteral("MMM"));
}

QVariant ChartTrendModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const MonthTotals& month = trend_[static_cast<std::size_t>(index.row())];
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(index.column() == monthColumn ? Qt::AlignLeading | Qt::AlignVCenter
                                                                 : Qt::AlignTrailing | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) return {};
    switch (index.column()) {
        case monthColumn: return monthTitle(month.month, calendar_);
        case incomeColumn: return movementAmountText(month.income, TransactionKind::income);
        case expensesColumn: return movementAmountText(month.expenses, TransactionKind::expense);
        case netColumn: return euroText(netAt(index.row()));
        default: return {};
    }
}

QVariant ChartTrendModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
        case monthColumn: return uiText("Mese");
        case incomeColumn: return uiText("Entrate");
        case expensesColumn: return uiText("Uscite");
        case netColumn: return uiText("Saldo netto");
        default: return {};
    }
}

QJsonArray ChartTrendModel::rowsAsJson() const {
    QJsonArray rows;
    for (int row = 0; row < rowCount(); ++row) {
        const MonthTotals& month = trend_[static_cast<std::size_t>(row)];
        rows.append(QJsonObject{{QStringLiteral("month"), monthKey(month.month, calendar_)},
                                {QStringLiteral("income"), QString::fromStdString(month.income.description())},
                                {QStringLiteral("expenses"), QString::fromStdString(month.expenses.description())},
                                {QStringLiteral("net"), QString::fromStdString(netAt(row).description())}});
    }
    return rows;
}

}  // namespace vantello::app
