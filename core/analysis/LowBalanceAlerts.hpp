#pragma once
// Warns about every account whose balance has fallen below the threshold the user set on it.

#include "core/analysis/SmartAlert.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <vector>

namespace vantello {

// In the ledger's account order; a balance equal to the threshold is not below it.
[[nodiscard]] std::vector<SmartAlert> lowBalanceAlerts(const Ledger& ledger, Instant now, const Calendar& calendar);

}  // namespace vantello
