#pragma once
// Warns about an expense that seems to have been charged twice: the same amount with the same
// note (ignoring case, digits and punctuation) within three days, in the last thirty days.

#include "core/analysis/SmartAlert.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <vector>

namespace vantello {

// Movements made by recurring rules and transfers are never suspected. Each movement starts at
// most one pair, with the first later one that matches: three equal charges give two alerts.
[[nodiscard]] std::vector<SmartAlert> duplicateChargeAlerts(const Ledger& ledger, Instant now,
                                                            const Calendar& calendar);

}  // namespace vantello
