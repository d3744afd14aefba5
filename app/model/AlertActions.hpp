#pragma once
// What the month screen's alert banner can do with a smart alert, as changes of the ledger made
// through the model's one door (so that they are saved and can be undone).

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Decimal.hpp"

#include <QString>

#include <optional>
#include <string>

namespace vantello::app {

// Hides the alert for good: the same situation is not reported again.
void dismissSmartAlert(LedgerViewModel& model, const std::string& alertID);

// The balance under which the account raises a low-balance alert; nothing turns it off. The
// core's message comes back to the screen that asked.
std::optional<QString> setLowBalanceThreshold(LedgerViewModel& model, const std::string& accountID,
                                              std::optional<Decimal> threshold);

}  // namespace vantello::app
