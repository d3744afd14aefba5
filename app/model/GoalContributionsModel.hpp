#pragma once
// The deposits and withdrawals of one savings goal, newest first, for the contributions dialog.
// Follows the ledger: a goal removed meanwhile leaves the list empty.

#include "app/model/LedgerViewModel.hpp"
#include "core/ledger/SavingsGoal.hpp"

#include <QAbstractTableModel>
#include <QJsonArray>

#include <optional>
#include <vector>

namespace vantello::app {

class GoalContributionsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { dayColumn, noteColumn, amountColumn, columnTotal };
    enum Role {
        IdRole = Qt::UserRole + 1,
        DayTextRole,
        NoteRole,
        AmountTextRole,  // "+150,00 €" for a deposit, "−50,00 €" for a withdrawal
        IsDepositRole,
    };

    GoalContributionsModel(LedgerViewModel& model, Uuid goalID, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    [[nodiscard]] std::optional<Uuid> contributionID(int row) const;
    [[nodiscard]] QJsonArray rowsAsJson() const;

private:
    void rebuild();

    LedgerViewModel& model_;
    Uuid goalID_;
    std::vector<SavingsGoal::Contribution> rows_;
};

}  // namespace vantello::app
