#pragma once
// Every smart alert of the moment: the enabled detectors in a fixed order (unusual spending,
// possible duplicates, low balances, negative forecast), without the alerts the user dismissed.

#include "core/analysis/AlertSettings.hpp"
#include "core/analysis/SmartAlert.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <set>
#include <string>
#include <vector>

namespace vantello {

// `dismissed` is normally the ledger's own set of dismissed alert ids.
[[nodiscard]] std::vector<SmartAlert> smartAlerts(const Ledger& ledger, const AlertSettings& settings,
                                                  const std::set<std::string>& dismissed, Instant now,
                                                  const Calendar& calendar);

}  // namespace vantello
