#pragma once
// The accounts as the accounts screen lists them: name and icon, balance today and the
// low-balance threshold, the main account first. Balances are read once per change of the
// ledger, in one walk over the movements.

// Qt's headers first: moc cannot read the standard library's <concepts> before them.
#include <QAbstractTableModel>
#include <QJsonArray>

#include "core/base/Decimal.hpp"
#include "core/ledger/Account.hpp"
#include "core/ledger/Ledger.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace vantello::app {

class AccountListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { nameColumn, balanceColumn, thresholdColumn, columnCount_ };
    enum Role { IdRole = Qt::UserRole + 1, IsMainRole, BalanceSignRole };

    explicit AccountListModel(QObject* parent = nullptr);

    void setLedger(const Ledger& ledger);

    [[nodiscard]] const Account* account(int row) const;
    [[nodiscard]] const Decimal* balance(int row) const;
    [[nodiscard]] int rowOf(std::string_view accountID) const;
    // [{"id", "name", "balance" (canonical), "balanceText", "threshold" (canonical or null)}].
    [[nodiscard]] QJsonArray rowsAsJson() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Row {
        Account account;
        Decimal balance;
        bool operator==(const Row&) const = default;
    };
    std::vector<Row> rows_;
};

}  // namespace vantello::app
