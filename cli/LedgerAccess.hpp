#pragma once
// Reading the ledger of the chosen data folder, and changing it under the folder's writer lock.

#include "cli/Arguments.hpp"
#include "core/ledger/Ledger.hpp"

#include <functional>

namespace vantello::cli {

// The ledger as the file holds it; reading takes no lock, since nothing is written.
[[nodiscard]] Ledger readLedger(const Arguments& arguments);

// Loads the ledger under the writer lock, applies `change` and saves atomically when the ledger
// differs afterwards. Returns whether it was written. A change that throws writes nothing.
bool changeLedger(const Arguments& arguments, const std::function<void(Ledger&)>& change);

}  // namespace vantello::cli
