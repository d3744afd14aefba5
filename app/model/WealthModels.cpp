#include "app/model/WealthModels.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/settings/Language.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QDate>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>

namespace vantello::app {

namespace {

QString shortMonth(Instant moment, const Calendar& calendar) {
    const CivilDate day = calendar.civilDate(moment);
    const QLocale locale(QString::fromStdString(interfaceLocaleName()));
    return locale.toString(QDate(day.year, day.month, 1), QStringLiteral("MMM"));
}

}  // namespace

NetWorthOverview netWorthOverview(const std::vector<NetWorthPoint>& points, const Calendar& calendar) {
    NetWorthOverview overview;
    for (const NetWorthPoint& point : points) {
        const Decimal total = point.value.total();
        overview.history.push_back({shortMonth(point.date, calendar), total.toDouble(), euroText(total)});
    }
    const NetWorth today = points.empty() ? NetWorth{} : points.back().value;
    overview.total = today.total();
    overview.figure = euroText(overview.total);
    overview.context = uiText("Conti {accounts} · Beni {assets} · Debiti {debts}",
                              {{"accounts", euroText(today.accounts).toStdString()},
                               {"assets", euroText(today.assets).toStdString()},
                               {"debts", euroText(today.debts).toStdString()}});
    return overview;
}

bool loanIsBooked(const Ledger& ledger, const Loan& loan) {
    return loan.recurringRuleID && std::ranges::any_of(ledger.recurringRules(), [&](const RecurringRule& rule) {
               return rule.id == *loan.recurringRuleID;
           });
}

// ---- WealthTableModel

int WealthTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int WealthTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(columns_.size());
}

QVariant WealthTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= int(rows_.size()) || index.column() >= int(columns_.size())) return {};
    const Row& row = rows_[std::size_t(index.row())];
    const Column& column = columns_[std::size_t(index.column())];
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole: return cellText(index.row(), index.column());
        case Qt::TextAlignmentRole:
            return column.amount ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter))
                                 : QVariant(int(Qt::AlignLeft | Qt::AlignVCenter));
        case Qt::DecorationRole:
            if (index.column() == 0 && !row.symbol.isEmpty()) return symbolIcon(row.symbol.toStdString());
            return {};
        case Qt::ForegroundRole:
            if (!column.coloured || row.sign == 0) return {};
            return row.sign > 0 ? currentPalette().income : currentPalette().expense;
        case IdRole: return QString::fromStdString(row.id.text());
        case SignRole: return row.sign;
        default: return {};
    }
}

QVariant WealthTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= int(columns_.size())) return {};
    if (role == Qt::DisplayRole) return columns_[std::size_t(section)].title;
    if (role == Qt::TextAlignmentRole && columns_[std::size_t(section)].amount) {
        return int(Qt::AlignRight | Qt::AlignVCenter);
    }
    return {};
}

std::optional<Uuid> WealthTableModel::idAt(int row) const {
    if (row < 0 || row >= int(rows_.size())) return std::nullopt;
    return rows_[std::size_t(row)].id;
}

int WealthTableModel::rowOf(const Uuid& id) const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (rows_[row].id == id) return int(row);
    }
    return -1;
}

QString WealthTableModel::cellText(int row, int column) const {
    return rows_[std::size_t(row)].cells.value(column);
}

QJsonArray WealthTableModel::rowsAsJson() const {
    QJsonArray all;
    for (std::size_t index = 0; index < rows_.size(); ++index) {
        QJsonObject object{{QStringLiteral("id"), QString::fromStdString(rows_[index].id.text())}};
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            object.insert(columns_[column].key, cellText(int(index), int(column)));
        }
        all.append(object);
    }
    return all;
}

void WealthTableModel::setRows(std::vector<Row> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

// ---- the assets

AssetListModel::AssetListModel(LedgerViewModel& model, QObject* parent) : WealthTableModel(parent), model_(model) {
    setColumns({{QStringLiteral("name"), uiText("Bene")},
                {QStringLiteral("date"), uiText("Valutato il")},
                {QStringLiteral("value"), uiText("Valore"), true}});
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &AssetListModel::refresh);
    refresh();
}

void AssetListModel::refresh() {
    std::vector<Row> rows;
    const Calendar& calendar = model_.calendar();
    for (const Asset& asset : model_.ledger().data().assets) {
        Row row{asset.id, {QString::fromStdString(asset.name), uiText("Mai"), QStringLiteral("—")},
                QString::fromStdString(asset.symbol), 0};
        if (!asset.valuations.empty()) {
            const Asset::Valuation& latest = asset.valuations.back();
            row.cells[1] = dayText(latest.date, calendar);
            row.cells[2] = euroText(latest.value);
        }
        rows.push_back(std::move(row));
    }
    setRows(std::move(rows));
}

// ---- the loans

LoanListModel::LoanListModel(LedgerViewModel& model, QObject* parent) : WealthTableModel(parent), model_(model) {
    setColumns({{QStringLiteral("name"), uiText("Prestito")},
                {QStringLiteral("payment"), uiText("Rata mensile"), true},
                {QStringLiteral("remaining"), uiText("Capitale da restituire"), true},
                {QStringLiteral("progress"), uiText("Rate pagate")},
                {QStringLiteral("booked"), uiText("Nei movimenti")}});
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &LoanListModel::refresh);
    refresh();
}

void LoanListModel::refresh() {
    std::vector<Row> rows;
    const Calendar& calendar = model_.calendar();
    const Instant now = model_.now();
    const Ledger& ledger = model_.ledger();
    for (const Loan& loan : ledger.data().loans) {
        const LoanSummary summary = loanSummary(loan, now, calendar);
        const bool booked = loanIsBooked(ledger, loan);
        const int total = summary.paymentsMade + summary.paymentsLeft;
        rows.push_back({loan.id,
                        {QString::fromStdString(loan.name), euroText(summary.payment), euroText(summary.remaining),
                         uiText("{made} di {total}", {{"made", std::to_string(summary.paymentsMade)},
                                                       {"total", std::to_string(total)}}),
                         booked ? uiText("Rata ricorrente") : uiText("Non registrata")},
                        {},
                        0});
    }
    setRows(std::move(rows));
}

// ---- one loan's plan

LoanScheduleModel::LoanScheduleModel(const Loan& loan, const Calendar& calendar, QObject* parent)
    : WealthTableModel(parent) {
    setColumns({{QStringLiteral("number"), uiText("N.")},
                {QStringLiteral("date"), uiText("Data")},
                {QStringLiteral("amount"), uiText("Rata"), true},
                {QStringLiteral("interest"), uiText("Interessi"), true},
                {QStringLiteral("principal"), uiText("Capitale"), true},
                {QStringLiteral("remaining"), uiText("Residuo"), true}});
    const std::vector<LoanPayment> schedule = loanSchedule(loan, calendar);
    interest_ = totalInterest(schedule);
    std::vector<Row> rows;
    rows.reserve(schedule.size());
    for (const LoanPayment& payment : schedule) {
        rows.push_back({loan.id,
                        {QString::number(payment.number), dayText(payment.date, calendar), euroText(payment.amount),
                         euroText(payment.interest), euroText(payment.principal), euroText(payment.remaining)},
                        {},
                        0});
    }
    setRows(std::move(rows));
}

}  // namespace vantello::app
