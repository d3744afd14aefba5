#include "app/model/GoalContributionsModel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QBrush>
#include <QJsonObject>

#include <algorithm>

namespace vantello::app {

GoalContributionsModel::GoalContributionsModel(LedgerViewModel& model, Uuid goalID, QObject* parent)
    : QAbstractTableModel(parent), model_(model), goalID_(goalID) {
    rebuild();
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &GoalContributionsModel::rebuild);
}

void GoalContributionsModel::rebuild() {
    beginResetModel();
    rows_.clear();
    for (const SavingsGoal& goal : model_.ledger().data().savingsGoals) {
        if (goal.id == goalID_) rows_ = goal.contributions;
    }
    std::stable_sort(rows_.begin(), rows_.end(), [](const auto& a, const auto& b) { return a.date > b.date; });
    endResetModel();
}

int GoalContributionsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int GoalContributionsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columnTotal; }

QVariant GoalContributionsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole && section == amountColumn) {
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    }
    if (role != Qt::DisplayRole) return {};
    switch (section) {
        case dayColumn: return uiText("Data");
        case noteColumn: return uiText("Nota");
        case amountColumn: return uiText("Importo");
        default: return {};
    }
}

QVariant GoalContributionsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const SavingsGoal::Contribution& row = rows_[static_cast<std::size_t>(index.row())];
    const bool deposit = row.amount.sign() > 0;
    const QString amount =
        movementAmountText(row.amount.magnitude(), deposit ? TransactionKind::income : TransactionKind::expense);
    const QString day = dayText(row.date, model_.calendar());
    switch (role) {
        case Qt::DisplayRole:
            switch (index.column()) {
                case dayColumn: return day;
                case noteColumn:
                    return row.note.empty() ? (deposit ? uiText("Versamento") : uiText("Prelievo"))
                                            : QString::fromStdString(row.note);
                case amountColumn: return amount;
                default: return {};
            }
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(Qt::Alignment(
                (index.column() == amountColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
        case Qt::ForegroundRole:
            if (index.column() != amountColumn) return {};
            return QBrush(deposit ? currentPalette().income : currentPalette().expense);
        case IdRole: return QString::fromStdString(row.id.text());
        case DayTextRole: return day;
        case NoteRole: return QString::fromStdString(row.note);
        case AmountTextRole: return amount;
        case IsDepositRole: return deposit;
        default: return {};
    }
}

std::optional<Uuid> GoalContributionsModel::contributionID(int row) const {
    if (row < 0 || row >= rowCount()) return std::nullopt;
    return rows_[static_cast<std::size_t>(row)].id;
}

QJsonArray GoalContributionsModel::rowsAsJson() const {
    QJsonArray rows;
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex at = index(row, 0);
        rows.append(QJsonObject{{QStringLiteral("id"), at.data(IdRole).toString()},
                                {QStringLiteral("day"), at.data(DayTextRole).toString()},
                                {QStringLiteral("note"), at.data(NoteRole).toString()},
                                {QStringLiteral("amount"), at.data(AmountTextRole).toString()}});
    }
    return rows;
}

}  // namespace vantello::app
