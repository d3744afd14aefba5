#pragma once
// The budgets of the month shown, as the budgets screen lists them: one row per category with a
// budget, spent against the limit with the level the core gives, and the month's spending in
// categories without a budget apart.

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include <QAbstractListModel>
#include <QColor>
#include <QJsonArray>

#include "app/settings/ThemePalette.hpp"
#include "core/analysis/MonthSummary.hpp"

#include <string>
#include <vector>

namespace vantello::app {

// The colour a level's bar is drawn in: the income green on track, an amber near the limit, the
// expense red over it. Always shown beside the level's word.
[[nodiscard]] QColor budgetLevelColour(BudgetStatus::Level level, const ThemePalette& palette);
// "In linea", "Quasi al limite", "Superato".
[[nodiscard]] QString budgetLevelText(BudgetStatus::Level level);

class BudgetListModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role {
        categoryIDRole = Qt::UserRole + 1,
        symbolRole,        // the category's symbol name, for symbolIcon
        spentTextRole,     // "120,00 € di 300,00 €"
        remainingTextRole, // "Restano 180,00 €" or "Superato di 20,00 €"
        levelRole,         // int of BudgetStatus::Level
        levelTextRole,
        progressRole,      // spent ÷ budget, as a double (may exceed 1)
    };

    explicit BudgetListModel(QObject* parent = nullptr);

    // The month's budgets and, from its breakdown, the spending of categories without a budget.
    void setSummary(const MonthSummary& summary);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    [[nodiscard]] const std::vector<BudgetStatus>& statuses() const { return statuses_; }
    [[nodiscard]] const Decimal& unbudgetedSpending() const { return unbudgeted_; }
    // "Spese senza budget: 45,00 €".
    [[nodiscard]] QString unbudgetedText() const;
    // The row of a category, -1 when it has no budget.
    [[nodiscard]] int rowOf(const std::string& categoryID) const;
    // One object per budget: category, name, budget, spent, remaining, level, levelText.
    [[nodiscard]] QJsonArray rowsAsJson() const;

private:
    std::vector<BudgetStatus> statuses_;
    Decimal unbudgeted_;
};

}  // namespace vantello::app
