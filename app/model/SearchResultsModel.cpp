#include "app/model/SearchResultsModel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/analysis/TransactionSearch.hpp"
#include "core/statements/CSVExport.hpp"

#include <QJsonObject>
#include <QLocale>

namespace vantello::app {

SearchResultsModel::SearchResultsModel(LedgerViewModel& model, QObject* parent)
    : QAbstractTableModel(parent), model_(model) {}

int SearchResultsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(results_.size());
}

int SearchResultsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns; }

void SearchResultsModel::search(const TransactionFilter& filter) {
    if (searchedRevision_ == model_.ledgerRevision() && filter == filter_) return;
    filter_ = filter;
    run();
}

void SearchResultsModel::refresh() {
    if (searchedRevision_ == model_.ledgerRevision()) return;
    run();
}

void SearchResultsModel::run() {
    const Ledger& ledger = model_.ledger();
    beginResetModel();
    results_ = searchTransactions(ledger, filter_, model_.now(), model_.calendar());
    searchedRevision_ = model_.ledgerRevision();
    totals_ = {};
    for (const Transaction& movement : results_) addToTotals(totals_, movement);
    // Names and icons are looked up once per search, not once per painted cell.
    categories_.clear();
    for (const TransactionCategory& known : ledger.allCategories())
        categories_[known.id] = Category{QString::fromStdString(known.name), symbolIcon(known.symbol)};
    if (auto transfer = ledger.category("giroconto"))
        categories_[transfer->id] = Category{QString::fromStdString(transfer->name), symbolIcon(transfer->symbol)};
    accounts_.clear();
    for (const Account& account : ledger.accounts()) accounts_[account.id] = QString::fromStdString(account.name);
    manyAccounts_ = ledger.accounts().size() > 1;
    endResetModel();
    Q_EMIT resultsChanged();
}

const SearchResultsModel::Category& SearchResultsModel::category(const std::string& id) const {
    static const Category unknown;
    const auto found = categories_.find(id);
    return found == categories_.end() ? unknown : found->second;
}

QString SearchResultsModel::text(const Transaction& movement, int column) const {
    switch (column) {
        case dateColumn: return dayText(movement.date, model_.calendar());
        case categoryColumn: {
            const QString& name = category(movement.categoryID).name;
            return name.isEmpty() ? QString::fromStdString(movement.categoryID) : name;
        }
        case noteColumn: return QString::fromStdString(movement.note);
        case accountColumn: {
            auto name = [this](const std::string& id) {
                const auto found = accounts_.find(id);
                return found == accounts_.end() ? QString::fromStdString(id) : found->second;
            };
            if (movement.transferToAccountID)
                return name(movement.accountID) + QStringLiteral(" \u2192 ") + name(*movement.transferToAccountID);
            return name(movement.accountID);
        }
        case amountColumn:
            return movement.isTransfer() ? euroText(movement.amount) : movementAmountText(movement.amount, movement.kind);
        default: return {};
    }
}

QVariant SearchResultsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= static_cast<int>(results_.size())) return {};
    const Transaction& movement = results_[static_cast<std::size_t>(index.row())];
    const int sign = movement.isTransfer() ? 0 : (movement.kind == TransactionKind::income ? 1 : -1);
    switch (role) {
        case Qt::DisplayRole: return text(movement, index.column());
        case Qt::ToolTipRole:
            return index.column() == noteColumn && !movement.note.empty() ? QVariant(text(movement, noteColumn))
                                                                          : QVariant();
        case Qt::DecorationRole:
            if (index.column() == categoryColumn) return category(movement.categoryID).icon;
            if (index.column() == noteColumn && !movement.attachments.empty()) {
                static const QIcon attachment = symbolIcon("paperclip");
                return attachment;
            }
            return {};
        case Qt::TextAlignmentRole:
            return index.column() == amountColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                                  : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
        case Qt::ForegroundRole:
            if (index.column() != amountColumn || sign == 0) return {};
            return sign > 0 ? currentPalette().income : currentPalette().expense;
        case Qt::AccessibleTextRole: {
            QStringList parts;
            for (int column = 0; column < columns; ++column) {
                const QString part = text(movement, column);
                if (!part.isEmpty()) parts << part;
            }
            if (!movement.attachments.empty()) parts << uiText("con allegati");
            return parts.join(QStringLiteral(", "));
        }
        case IdRole: return QString::fromStdString(movement.id.text());
        case SignRole: return sign;
        default: return {};
    }
}

QVariant SearchResultsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole)
        return section == amountColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    switch (section) {
        case dateColumn: return uiText("Data");
        case categoryColumn: return uiText("Categoria");
        case noteColumn: return uiText("Nota");
        case accountColumn: return uiText("Conto");
        case amountColumn: return uiText("Importo");
        default: return {};
    }
}

std::optional<Uuid> SearchResultsModel::transactionID(int row) const {
    if (row < 0 || row >= static_cast<int>(results_.size())) return std::nullopt;
    return results_[static_cast<std::size_t>(row)].id;
}

std::string SearchResultsModel::csvText() const {
    return CSVExport::text(results_, model_.ledger().allCategories(), model_.calendar(), QLocale().name().toStdString(),
                           CSVExport::Order::asGiven);
}

QJsonArray SearchResultsModel::rowsAsJson() const {
    QJsonArray rows;
    for (int row = 0; row < rowCount(); ++row) {
        QJsonObject object;
        object[QStringLiteral("id")] = data(index(row, 0), IdRole).toString();
        object[QStringLiteral("date")] = data(index(row, dateColumn), Qt::DisplayRole).toString();
        object[QStringLiteral("category")] = data(index(row, categoryColumn), Qt::DisplayRole).toString();
        object[QStringLiteral("note")] = data(index(row, noteColumn), Qt::DisplayRole).toString();
        object[QStringLiteral("account")] = data(index(row, accountColumn), Qt::DisplayRole).toString();
        object[QStringLiteral("amount")] = data(index(row, amountColumn), Qt::DisplayRole).toString();
        rows.append(object);
    }
    return rows;
}

}  // namespace vantello::app
