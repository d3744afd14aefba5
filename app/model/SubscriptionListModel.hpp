#pragma once
// The subscriptions the core finds in the ledger, highest yearly cost first, as a table: name,
// frequency, latest charge, monthly and yearly cost, next expected charge and any price rise.
// Detection runs once per change of the ledger; painting only reads the rows.

#include "app/model/LedgerViewModel.hpp"
#include "core/planning/SubscriptionDetection.hpp"

#include <QAbstractTableModel>
#include <QJsonArray>
#include <QString>

#include <vector>

namespace vantello::app {

class SubscriptionListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { nameColumn, frequencyColumn, amountColumn, monthlyColumn, yearlyColumn, nextColumn, priceColumn, columnTotal };
    enum Role {
        KeyRole = Qt::UserRole + 1,  // the subscription's key, on every column
        PriceIncreasedRole,
        IsRecurringRole,
    };

    explicit SubscriptionListModel(LedgerViewModel& model, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    [[nodiscard]] const DetectedSubscription* subscription(int row) const;
    [[nodiscard]] int rowOf(const std::string& key) const;
    // Every row's texts under the column names, for tests and diagnostics.
    [[nodiscard]] QJsonArray rowsAsJson() const;

private:
    void rebuild();

    LedgerViewModel& model_;
    std::vector<DetectedSubscription> rows_;
};

}  // namespace vantello::app
