#pragma once
// What the month screen's alert banner can do with a smart alert, as changes of the ledger made
// through the model's one door (so that they are saved and can be undone).

#include "app/model/LedgerViewModel.hpp"

#include <string>

namespace vantello::app {

// Hides the alert for good: the same situation is not reported again.
void dismissSmartAlert(LedgerViewModel& model, const std::string& alertID);

}  // namespace vantello::app
