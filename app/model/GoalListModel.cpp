#include "app/model/GoalListModel.hpp"

#include "app/model/DisplayText.hpp"

#include <QJsonObject>

namespace vantello::app {

GoalListModel::GoalListModel(LedgerViewModel& model, QObject* parent) : QAbstractListModel(parent), model_(model) {
    rebuild();
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &GoalListModel::rebuild);
}

void GoalListModel::rebuild() {
    beginResetModel();
    rows_.clear();
    const Instant now = model_.now();
    for (const SavingsGoal& goal : model_.ledger().data().savingsGoals) {
        rows_.push_back({goal, goalProgress(goal, now, model_.calendar())});
    }
    endResetModel();
}

int GoalListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant GoalListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    const GoalProgress& progress = row.progress;
    const Calendar& calendar = model_.calendar();
    switch (role) {
        case Qt::DisplayRole: return QString::fromStdString(row.goal.name);
        case IdRole: return QString::fromStdString(row.goal.id.text());
        case SymbolRole: return QString::fromStdString(row.goal.symbol);
        case ProgressRole: return progress.progress;
        case StatusRole: return static_cast<int>(progress.status);
        case StatusTextRole: return goalStatusText(progress.status);
        case SavedTextRole: return euroText(progress.saved);
        case TargetTextRole: return euroText(row.goal.target);
        case RemainingTextRole: return euroText(progress.remaining);
        case MonthlyNeededTextRole:
            return progress.monthlyAmountNeeded ? euroText(*progress.monthlyAmountNeeded) : QString();
        case PaceTextRole: return euroText(progress.monthlyPace);
        case ProjectedDateTextRole:
            return progress.projectedReachDate ? dayText(*progress.projectedReachDate, calendar) : QString();
        case DeadlineTextRole: return row.goal.deadline ? dayText(*row.goal.deadline, calendar) : QString();
        case ContributionCountRole: return static_cast<int>(row.goal.contributions.size());
        default: return {};
    }
}

QHash<int, QByteArray> GoalListModel::roleNames() const {
    return {{Qt::DisplayRole, "name"},
            {IdRole, "id"},
            {SymbolRole, "symbol"},
            {ProgressRole, "progress"},
            {StatusRole, "status"},
            {StatusTextRole, "statusText"},
            {SavedTextRole, "saved"},
            {TargetTextRole, "target"},
            {RemainingTextRole, "remaining"},
            {MonthlyNeededTextRole, "monthlyNeeded"},
            {PaceTextRole, "pace"},
            {ProjectedDateTextRole, "projectedDate"},
            {DeadlineTextRole, "deadline"},
            {ContributionCountRole, "contributions"}};
}

const SavingsGoal* GoalListModel::goal(int row) const {
    return row >= 0 && row < rowCount() ? &rows_[static_cast<std::size_t>(row)].goal : nullptr;
}

const GoalProgress* GoalListModel::progress(int row) const {
    return row >= 0 && row < rowCount() ? &rows_[static_cast<std::size_t>(row)].progress : nullptr;
}

int GoalListModel::rowOf(const Uuid& goalID) const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (rows_[row].goal.id == goalID) return static_cast<int>(row);
    }
    return -1;
}

QJsonArray GoalListModel::rowsAsJson() const {
    QJsonArray rows;
    const QHash<int, QByteArray> names = roleNames();
    for (int row = 0; row < rowCount(); ++row) {
        QJsonObject object;
        for (auto name = names.begin(); name != names.end(); ++name) {
            object.insert(QString::fromLatin1(name.value()), QJsonValue::fromVariant(data(index(row), name.key())));
        }
        rows.append(object);
    }
    return rows;
}

QString goalStatusText(GoalStatus status) { return QString::fromStdString(goalStatusLabel(status)); }

}  // namespace vantello::app
