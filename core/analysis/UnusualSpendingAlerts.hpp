#pragma once
// Warns about a category whose spending this month is well above its monthly average of the
// three months before (more than half as much again, and at least 20 € more).

#include "core/analysis/SmartAlert.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <vector>

namespace vantello {

// Only earlier months holding some movement count towards the average; the alerts follow the
// order of the ledger's categories.
[[nodiscard]] std::vector<SmartAlert> unusualSpendingAlerts(const Ledger& ledger, Instant now,
                                                            const Calendar& calendar);

}  // namespace vantello
