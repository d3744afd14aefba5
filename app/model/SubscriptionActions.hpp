#pragma once
// What the subscriptions screen does with a detected subscription, as changes made through the
// model's one door (saved, and undone as one step). Both look the subscription up again by its
// key in the ledger being changed, so a list shown before a change never acts on stale figures.

#include "app/model/LedgerViewModel.hpp"

#include <QString>

#include <optional>
#include <string>

namespace vantello::app {

// "Non è un abbonamento": the key is ignored for good. The core's message comes back.
std::optional<QString> ignoreDetectedSubscription(LedgerViewModel& model, const std::string& key);
// "Rendi ricorrente": a recurring expense from the next expected charge. The core's message (a
// rule already there) comes back to the screen.
std::optional<QString> makeDetectedSubscriptionRecurring(LedgerViewModel& model, const std::string& key);

}  // namespace vantello::app
