#include "app/model/BudgetListModel.hpp"

#include "app/model/DisplayText.hpp"

#include <QJsonObject>

#include <algorithm>
#include <set>

namespace vantello::app {

QColor budgetLevelColour(BudgetStatus::Level level, const ThemePalette& palette) {
    switch (level) {
        case BudgetStatus::Level::onTrack: return palette.income;
        case BudgetStatus::Level::warning:
            return palette.windowBackground.lightness() < 128 ? QColor(0xf0, 0xb4, 0x3c) : QColor(0xc2, 0x7c, 0x0e);
        case BudgetStatus::Level::over: return palette.expense;
    }
    return palette.primaryText;
}

QString budgetLevelText(BudgetStatus::Level level) {
    switch (level) {
        case BudgetStatus::Level::onTrack: return uiText("In linea");
        case BudgetStatus::Level::warning: return uiText("Quasi al limite");
        case BudgetStatus::Level::over: return uiText("Superato");
    }
    return {};
}

namespace {

QString spentText(const BudgetStatus& status) {
    const auto spent = euroText(status.spent).toStdString();
    const auto budget = euroText(status.budget).toStdString();
    return uiText("{spent} di {budget}", {{"spent", spent}, {"budget", budget}});
}

QString remainingText(const BudgetStatus& status) {
    const Decimal remaining = status.remaining();
    if (remaining.sign() < 0) {
        return uiText("Superato di {amount}", {{"amount", euroText(remaining.magnitude()).toStdString()}});
    }
    return uiText("Restano {amount}", {{"amount", euroText(remaining).toStdString()}});
}

}  // namespace

BudgetListModel::BudgetListModel(QObject* parent) : QAbstractListModel(parent) {}

void BudgetListModel::setSummary(const MonthSummary& summary) {
    std::set<std::string> budgeted;
    for (const BudgetStatus& status : summary.budgets) budgeted.insert(status.category.id);
    Decimal unbudgeted;
    for (const CategoryTotal& entry : summary.breakdown) {
        if (!budgeted.contains(entry.category.id)) unbudgeted += entry.total;
    }
    unbudgeted_ = unbudgeted;
    if (summary.budgets == statuses_) return;
    beginResetModel();
    statuses_ = summary.budgets;
    endResetModel();
}

int BudgetListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(statuses_.size());
}

QVariant BudgetListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const BudgetStatus& status = statuses_[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DisplayRole: return QString::fromStdString(status.category.name);
        case Qt::AccessibleTextRole:
            return QString::fromStdString(status.category.name) + QStringLiteral(": ") + spentText(status) +
                   QStringLiteral(", ") + remainingText(status) + QStringLiteral(", ") + budgetLevelText(status.level());
        case categoryIDRole: return QString::fromStdString(status.category.id);
        case symbolRole: return QString::fromStdString(status.category.symbol);
        case spentTextRole: return spentText(status);
        case remainingTextRole: return remainingText(status);
        case levelRole: return static_cast<int>(status.level());
        case levelTextRole: return budgetLevelText(status.level());
        case progressRole: return status.progress();
        default: return {};
    }
}

QString BudgetListModel::unbudgetedText() const {
    return uiText("Spese senza budget: {amount}", {{"amount", euroText(unbudgeted_).toStdString()}});
}

int BudgetListModel::rowOf(const std::string& categoryID) const {
    const auto found = std::find_if(statuses_.begin(), statuses_.end(),
                                    [&](const BudgetStatus& status) { return status.category.id == categoryID; });
    return found == statuses_.end() ? -1 : static_cast<int>(found - statuses_.begin());
}

QJsonArray BudgetListModel::rowsAsJson() const {
    QJsonArray rows;
    for (const BudgetStatus& status : statuses_) {
        rows.append(QJsonObject{{QStringLiteral("category"), QString::fromStdString(status.category.id)},
                                {QStringLiteral("name"), QString::fromStdString(status.category.name)},
                                {QStringLiteral("budget"), QString::fromStdString(status.budget.description())},
                                {QStringLiteral("spent"), QString::fromStdString(status.spent.description())},
                                {QStringLiteral("remaining"), remainingText(status)},
                                {QStringLiteral("level"), QString::fromUtf8(levelName(status.level()))},
                                {QStringLiteral("levelText"), budgetLevelText(status.level())}});
    }
    return rows;
}

}  // namespace vantello::app
