#pragma once
// Dismissing a smart alert for good: its id joins the ledger's set of dismissed alerts, which is
// saved with the ledger, so the same situation is not reported again.

#include "core/ledger/Ledger.hpp"

#include <string_view>

namespace vantello {

// An empty id, or one already dismissed, leaves the ledger as it was.
void dismissAlert(Ledger& ledger, std::string_view alertID);

}  // namespace vantello
