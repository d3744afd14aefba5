#include "app/model/ImportPreviewModel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

namespace vantello::app {

namespace {

QString cellText(const CSV::Row& cells, std::optional<int> column) {
    if (!column || *column < 0 || static_cast<std::size_t>(*column) >= cells.size()) return {};
    return QString::fromStdString(cells[static_cast<std::size_t>(*column)]).simplified();
}

// "⚠" ahead of the reason, so that a refused row reads as one without its colour.
QString problemText(const std::string& problem) { return QStringLiteral("\u26A0 ") + QString::fromStdString(problem); }

}  // namespace

ImportPreviewModel::ImportPreviewModel(const Calendar& calendar, QObject* parent)
    : QAbstractTableModel(parent), calendar_(calendar) {}

void ImportPreviewModel::setStatement(const StatementImport& statement,
                                      const std::vector<TransactionCategory>& categories) {
    beginResetModel();
    rows_ = statement.rows;
    raw_.assign(rows_.size(), {});
    importable_ = 0;
    categories_.clear();
    for (const auto& category : categories) categories_.insert_or_assign(category.id, category);
    const CSVImportOptions& options = statement.options;
    for (std::size_t index = 0; index < rows_.size(); ++index) {
        const CSVImportRow& row = rows_[index];
        if (row.transaction) {
            ++importable_;
            continue;
        }
        if (row.line < 1 || static_cast<std::size_t>(row.line) > statement.table.size()) continue;
        const CSV::Row& cells = statement.table[static_cast<std::size_t>(row.line - 1)];
        RawCells& raw = raw_[index];
        raw.date = cellText(cells, options.dateColumn);
        raw.description = cellText(cells, options.descriptionColumn);
        if (options.amountMode == CSVImportOptions::AmountMode::separate) {
            raw.amount = cellText(cells, options.incomeColumn);
            if (raw.amount.isEmpty()) raw.amount = cellText(cells, options.expenseColumn);
        } else {
            raw.amount = cellText(cells, options.amountColumn);
        }
    }
    endResetModel();
}

int ImportPreviewModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ImportPreviewModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columnCount_; }

QVariant ImportPreviewModel::display(const CSVImportRow& row, const RawCells& raw, int column) const {
    if (column == lineColumn) return row.line;
    if (!row.transaction) {
        switch (column) {
            case dateColumn: return raw.date;
            case descriptionColumn: return problemText(row.problem.value_or(std::string()));
            case categoryColumn: return uiText("Non importata");
            case amountColumn: return raw.amount;
            default: return {};
        }
    }
    const Transaction& movement = *row.transaction;
    switch (column) {
        case dateColumn: return dayText(movement.date, calendar_);
        case descriptionColumn: return QString::fromStdString(movement.note);
        case categoryColumn: {
            const auto found = categories_.find(movement.categoryID);
            return found != categories_.end() ? QString::fromStdString(found->second.name)
                                              : QString::fromStdString(movement.categoryID);
        }
        case amountColumn: return movementAmountText(movement.amount, movement.kind);
        default: return {};
    }
}

QVariant ImportPreviewModel::tooltip(const CSVImportRow& row, const RawCells& raw) const {
    const QString line = uiText("Riga {line}", {{"line", std::to_string(row.line)}});
    if (row.transaction) return line;
    QString text = line + QStringLiteral(": ") + QString::fromStdString(row.problem.value_or(std::string()));
    if (!raw.description.isEmpty()) text += QStringLiteral("\n") + raw.description;
    return text;
}

QVariant ImportPreviewModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount_) return {};
    const auto position = static_cast<std::size_t>(index.row());
    const CSVImportRow& row = rows_[position];
    const RawCells& raw = raw_[position];
    const int column = index.column();
    switch (role) {
        case Qt::DisplayRole: return display(row, raw, column);
        case Qt::ToolTipRole: return tooltip(row, raw);
        case Qt::TextAlignmentRole:
            if (column == amountColumn || column == lineColumn) {
                return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
            }
            return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
        case Qt::ForegroundRole:
            if (!row.transaction) return QGuiApplication::palette().color(QPalette::PlaceholderText);
            if (column == amountColumn) {
                return row.transaction->kind == TransactionKind::income ? currentPalette().income
                                                                        : currentPalette().expense;
            }
            return {};
        case Qt::FontRole:
            if (!row.transaction) {
                QFont font;
                font.setItalic(true);
                return font;
            }
            return {};
        case Qt::DecorationRole:
            if (row.transaction && column == categoryColumn) {
                const auto found = categories_.find(row.transaction->categoryID);
                if (found != categories_.end()) return symbolIcon(found->second.symbol);
            }
            return {};
        case problemRole: return QString::fromStdString(row.problem.value_or(std::string()));
        case lineRole: return row.line;
        default: return {};
    }
}

QVariant ImportPreviewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue((section == amountColumn || section == lineColumn ? Qt::AlignRight : Qt::AlignLeft) |
                                   Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) return {};
    switch (section) {
        case lineColumn: return uiText("Riga");
        case dateColumn: return uiText("Data");
        case descriptionColumn: return uiText("Descrizione");
        case categoryColumn: return uiText("Categoria");
        case amountColumn: return uiText("Importo");
        default: return {};
    }
}

}  // namespace vantello::app
