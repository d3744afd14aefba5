#include "app/model/CategoryListModel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"

#include <QJsonObject>

#include <algorithm>

namespace vantello::app {

CategoryListModel::CategoryListModel(TransactionKind kind, QObject* parent)
    : QAbstractTableModel(parent), kind_(kind) {}

void CategoryListModel::setLedger(const Ledger& ledger) {
    std::vector<Row> rows;
    for (TransactionCategory& category : ledger.categories(kind_)) {
        const bool builtIn = builtInCategory(category.id) != nullptr;
        rows.push_back({std::move(category), builtIn});
    }
    if (rows.size() == rows_.size() &&
        std::equal(rows.begin(), rows.end(), rows_.begin(), [](const Row& left, const Row& right) {
            return left.category == right.category && left.builtIn == right.builtIn;
        })) {
        return;  // keeps the views' selection when the categories did not change
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

const TransactionCategory* CategoryListModel::category(int row) const {
    if (row < 0 || row >= int(rows_.size())) return nullptr;
    return &rows_[std::size_t(row)].category;
}

int CategoryListModel::rowOf(std::string_view categoryID) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(),
                                    [&](const Row& row) { return row.category.id == categoryID; });
    return found == rows_.end() ? -1 : int(found - rows_.begin());
}

QJsonArray CategoryListModel::rowsAsJson() const {
    QJsonArray rows;
    for (const Row& row : rows_) {
        rows.append(QJsonObject{{QStringLiteral("id"), QString::fromStdString(row.category.id)},
                                {QStringLiteral("name"), QString::fromStdString(row.category.name)},
                                {QStringLiteral("symbol"), QString::fromStdString(row.category.symbol)},
                                {QStringLiteral("builtIn"), row.builtIn}});
    }
    return rows;
}

int CategoryListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int CategoryListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columnCount_; }

QVariant CategoryListModel::data(const QModelIndex& index, int role) const {
    const TransactionCategory* shown = category(index.row());
    if (!shown) return {};
    const bool builtIn = rows_[std::size_t(index.row())].builtIn;
    switch (role) {
        case IdRole: return QString::fromStdString(shown->id);
        case SymbolRole: return QString::fromStdString(shown->symbol);
        case BuiltInRole: return builtIn;
        default: break;
    }
    if (index.column() == nameColumn) {
        if (role == Qt::DisplayRole) return QString::fromStdString(shown->name);
        if (role == Qt::DecorationRole) return symbolIcon(shown->symbol);
        if (role == Qt::AccessibleTextRole) {
            return QString::fromStdString(shown->name) + QStringLiteral(", ") +
                   (builtIn ? uiText("predefinita") : uiText("personale"));
        }
    } else if (index.column() == originColumn) {
        if (role == Qt::DisplayRole) return builtIn ? uiText("predefinita") : uiText("personale");
    }
    return {};
}

QVariant CategoryListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    if (section == nameColumn) return uiText("Categoria");
    if (section == originColumn) return uiText("Tipo");
    return {};
}

int movementsInCategory(const Ledger& ledger, std::string_view categoryID) {
    const auto& movements = ledger.transactions();
    return int(std::count_if(movements.begin(), movements.end(),
                             [&](const Transaction& movement) { return movement.categoryID == categoryID; }));
}

}  // namespace vantello::app
