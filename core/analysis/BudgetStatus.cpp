#include "core/analysis/BudgetStatus.hpp"

#include "core/analysis/CategoryBreakdown.hpp"

namespace vantello {

double BudgetStatus::progress() const {
    if (budget.sign() <= 0) return 0;
    return spent.dividedBy(budget).value_or(Decimal()).toDouble();
}

BudgetStatus::Level BudgetStatus::level() const {
    if (budget < spent) return Level::over;
    if (budget.sign() > 0 && progress() >= 0.8) return Level::warning;
    return Level::onTrack;
}

std::string_view levelName(BudgetStatus::Level level) {
    switch (level) {
        case BudgetStatus::Level::onTrack: return "onTrack";
        case BudgetStatus::Level::warning: return "warning";
        case BudgetStatus::Level::over: return "over";
    }
    return "onTrack";
}

std::vector<BudgetStatus> budgetStatuses(const Ledger& ledger, const DateInterval& month) {
    if (ledger.budgets().empty()) return {};
    return budgetStatuses(ledger, expensesByCategory(ledger, month));
}

std::vector<BudgetStatus> budgetStatuses(const Ledger& ledger, const std::map<std::string, Decimal>& spent) {
    const std::map<std::string, Decimal>& budgets = ledger.budgets();
    std::vector<BudgetStatus> statuses;
    for (const TransactionCategory& category : ledger.allCategories()) {
        const auto budget = budgets.find(category.id);
        if (budget == budgets.end()) continue;
        const auto sum = spent.find(category.id);
        statuses.push_back(BudgetStatus{category, budget->second, sum == spent.end() ? Decimal() : sum->second});
    }
    return statuses;
}

}  // namespace vantello
