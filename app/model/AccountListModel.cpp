#include "app/model/AccountListModel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/ledger/LedgerAccounts.hpp"

#include <QJsonObject>

#include <algorithm>

namespace vantello::app {

AccountListModel::AccountListModel(QObject* parent) : QAbstractTableModel(parent) {}

void AccountListModel::setLedger(const Ledger& ledger) {
    std::vector<std::string> ids;
    for (const Account& account : ledger.accounts()) ids.push_back(account.id);
    std::vector<Decimal> balances = accountBalances(ledger, ids);
    std::vector<Row> rows;
    rows.reserve(ids.size());
    for (std::size_t index = 0; index < ids.size(); ++index) {
        rows.push_back({ledger.accounts()[index], std::move(balances[index])});
    }
    if (rows == rows_) return;  // keeps the view's selection
    if (rows.size() == rows_.size() &&
        std::equal(rows.begin(), rows.end(), rows_.begin(),
                   [](const Row& left, const Row& right) { return left.account.id == right.account.id; })) {
        rows_ = std::move(rows);
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount_ - 1));
        return;
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

const Account* AccountListModel::account(int row) const {
    if (row < 0 || row >= int(rows_.size())) return nullptr;
    return &rows_[std::size_t(row)].account;
}

const Decimal* AccountListModel::balance(int row) const {
    if (row < 0 || row >= int(rows_.size())) return nullptr;
    return &rows_[std::size_t(row)].balance;
}

int AccountListModel::rowOf(std::string_view accountID) const {
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return row.account.id == accountID; });
    return found == rows_.end() ? -1 : int(found - rows_.begin());
}

QJsonArray AccountListModel::rowsAsJson() const {
    QJsonArray rows;
    for (const Row& row : rows_) {
        const auto& threshold = row.account.lowBalanceThreshold;
        rows.append(QJsonObject{
            {QStringLiteral("id"), QString::fromStdString(row.account.id)},
            {QStringLiteral("name"), QString::fromStdString(row.account.name)},
            {QStringLiteral("balance"), QString::fromStdString(row.balance.description())},
            {QStringLiteral("balanceText"), euroText(row.balance)},
            {QStringLiteral("threshold"),
             threshold ? QJsonValue(QString::fromStdString(threshold->description())) : QJsonValue()}});
    }
    return rows;
}

int AccountListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(rows_.size()); }

int AccountListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columnCount_; }

QVariant AccountListModel::data(const QModelIndex& index, int role) const {
    if (index.row() < 0 || index.row() >= int(rows_.size())) return {};
    const Row& row = rows_[std::size_t(index.row())];
    switch (role) {
        case IdRole: return QString::fromStdString(row.account.id);
        case IsMainRole: return row.account.id == mainAccountID;
        case BalanceSignRole: return row.balance.sign();
        default: break;
    }
    switch (index.column()) {
        case nameColumn:
            if (role == Qt::DisplayRole) return QString::fromStdString(row.account.name);
            if (role == Qt::DecorationRole) return symbolIcon(row.account.symbol);
            break;
        case balanceColumn:
            if (role == Qt::DisplayRole) return euroText(row.balance);
            if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
            // The minus sign stays beside the colour.
            if (role == Qt::ForegroundRole && row.balance.sign() < 0) return currentPalette().expense;
            if (role == Qt::AccessibleTextRole) {
                return uiText("Saldo {amount}", {{"amount", euroText(row.balance).toStdString()}});
            }
            break;
        case thresholdColumn:
            if (role == Qt::DisplayRole) {
                return row.account.lowBalanceThreshold ? euroText(*row.account.lowBalanceThreshold)
                                                       : uiText("nessuna");
            }
            if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
            break;
        default: break;
    }
    return {};
}

QVariant AccountListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole && section != nameColumn) {
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) return {};
    switch (section) {
        case nameColumn: return uiText("Conto");
        case balanceColumn: return uiText("Saldo");
        case thresholdColumn: return uiText("Avviso sotto");
        default: return {};
    }
}

}  // namespace vantello::app
