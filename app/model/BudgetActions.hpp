#pragma once
// The budgets screen's changes of the ledger, made through the model's one door (saved, and
// undone as one change each).

#include "app/model/LedgerViewModel.hpp"

#include <QString>

#include <optional>
#include <string>

namespace vantello::app {

// Sets the monthly budget of an expense category to the amount typed the Italian way
// ("1.250,00"). The reason, for the dialog that asked, when the text is not an amount or the
// core refuses; nothing when the budget is set.
[[nodiscard]] std::optional<QString> setCategoryBudget(LedgerViewModel& model, const std::string& categoryID,
                                                       const QString& typedAmount);

// Takes the category's budget away.
void removeCategoryBudget(LedgerViewModel& model, const std::string& categoryID);

}  // namespace vantello::app
