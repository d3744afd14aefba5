#include "core/analysis/AlertDismissal.hpp"

#include <string>

namespace vantello {

void dismissAlert(Ledger& ledger, std::string_view alertID) {
    if (alertID.empty() || ledger.data().dismissedAlerts.contains(std::string(alertID))) return;
    ledger.change([&](LedgerData& data) { data.dismissedAlerts.emplace(alertID); });
}

}  // namespace vantello
