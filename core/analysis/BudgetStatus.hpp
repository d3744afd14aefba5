#pragma once
// How each monthly category budget stands: the limit, what was spent in the month, and a level
// the screens colour.

#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vantello {

struct BudgetStatus {
    enum class Level { onTrack, warning, over };

    TransactionCategory category;
    Decimal budget;  // the monthly limit from the ledger's budgets table
    Decimal spent;   // the category's counting expenses in the month

    [[nodiscard]] Decimal remaining() const { return budget - spent; }  // negative when over
    // spent ÷ budget; 0 for a budget that is not positive.
    [[nodiscard]] double progress() const;
    // over when spent exceeds the budget; warning from 80% up to and including the budget itself;
    // on track below. A zero budget is over as soon as anything is spent.
    [[nodiscard]] Level level() const;

    bool operator==(const BudgetStatus&) const = default;
};

// "onTrack", "warning", "over".
[[nodiscard]] std::string_view levelName(BudgetStatus::Level level);

// One status per category with a budget, in the ledger's category order, for the movements dated
// in `month` (the month's interval).
[[nodiscard]] std::vector<BudgetStatus> budgetStatuses(const Ledger& ledger, const DateInterval& month);
// The same from the month's expenses already summed per category id.
[[nodiscard]] std::vector<BudgetStatus> budgetStatuses(const Ledger& ledger, const std::map<std::string, Decimal>& spent);

}  // namespace vantello
