#include "app/model/SubscriptionActions.hpp"

#include "app/model/DisplayText.hpp"
#include "core/planning/SubscriptionActions.hpp"

namespace vantello::app {

std::optional<QString> ignoreDetectedSubscription(LedgerViewModel& model, const std::string& key) {
    const Calendar& calendar = model.calendar();
    return model.apply(uiText("Ignora abbonamento"),
                       [&](Ledger& ledger) { ignoreSubscription(ledger, detectedSubscription(ledger, key, calendar)); },
                       LedgerViewModel::ErrorRoute::caller);
}

std::optional<QString> makeDetectedSubscriptionRecurring(LedgerViewModel& model, const std::string& key) {
    const Calendar& calendar = model.calendar();
    return model.apply(
        uiText("Rendi ricorrente"),
        [&](Ledger& ledger) { makeSubscriptionRecurring(ledger, detectedSubscription(ledger, key, calendar)); },
        LedgerViewModel::ErrorRoute::caller);
}

}  // namespace vantello::app
