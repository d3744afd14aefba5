#include "app/model/RuleListModel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "core/ledger/CategoryRuleMatcher.hpp"
#include "core/ledger/TransactionCategory.hpp"

#include <QJsonObject>

namespace vantello::app {

namespace {

QString text(const std::string& value) { return QString::fromStdString(value); }

QString categoryName(const Ledger& ledger, std::string_view id) {
    const auto category = ledger.category(id);
    return category ? text(category->name) : text(std::string(id));
}

}  // namespace

RuleListModel::RuleListModel(LedgerViewModel& model, QObject* parent) : QAbstractTableModel(parent), model_(model) {
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &RuleListModel::refresh);
    refresh();
}

void RuleListModel::refresh() {
    const Ledger& ledger = model_.ledger();
    std::vector<Row> rows;
    rows.reserve(ledger.categoryRules().size());
    for (const CategoryRule& rule : ledger.categoryRules()) {
        const auto category = ledger.category(rule.categoryID);
        rows.push_back({rule.id, text(rule.pattern), category ? text(category->name) : text(rule.categoryID),
                        symbolIcon(category ? category->symbol : std::string())});
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int RuleListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RuleListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant RuleListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    if (role == idRole) return text(row.id.text());
    if (role == Qt::DecorationRole) return index.column() == CategoryColumn ? QVariant(row.icon) : QVariant();
    if (role == Qt::TextAlignmentRole && index.column() == PriorityColumn) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
    switch (index.column()) {
    case PriorityColumn: return QString::number(index.row() + 1);
    case PatternColumn: return row.pattern;
    case CategoryColumn: return row.category;
    default: return {};
    }
}

QVariant RuleListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
    case PriorityColumn: return uiText("N.");
    case PatternColumn: return uiText("Se la nota contiene");
    case CategoryColumn: return uiText("Categoria");
    default: return {};
    }
}

std::optional<Uuid> RuleListModel::ruleID(int row) const {
    if (row < 0 || row >= rowCount()) return std::nullopt;
    return rows_[static_cast<std::size_t>(row)].id;
}

int RuleListModel::rowOf(const Uuid& ruleID) const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (rows_[row].id == ruleID) return static_cast<int>(row);
    }
    return -1;
}

QJsonArray RuleListModel::rowsAsJson() const {
    QJsonArray array;
    for (const Row& row : rows_) {
        array.append(QJsonObject{{QStringLiteral("id"), text(row.id.text())},
                                 {QStringLiteral("pattern"), row.pattern},
                                 {QStringLiteral("category"), row.category}});
    }
    return array;
}

QString ruleTryText(const Ledger& ledger, const QString& note, TransactionKind kind) {
    if (note.trimmed().isEmpty()) return {};
    const CategoryRuleMatcher matcher(ledger);
    const std::optional<std::string> category = matcher.categoryFor(note.toStdString(), kind);
    if (category) return uiText("Andrebbe in «{categoria}».", {{"categoria", categoryName(ledger, *category).toStdString()}});
    return uiText("Nessuna regola si applica: resterebbe in «{categoria}».",
                  {{"categoria", categoryName(ledger, fallbackCategoryID(kind)).toStdString()}});
}

}  // namespace vantello::app
