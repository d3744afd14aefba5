#pragma once
// What the user does with a detected subscription: hide it for good ("Non è un abbonamento") or
// turn it into a recurring rule ("Rendi ricorrente").

#include "core/base/Calendar.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/RecurringRule.hpp"
#include "core/planning/SubscriptionDetection.hpp"

#include <string_view>

namespace vantello {

// The subscription detected under this key; SubscriptionError notFound when there is none
// (an ignored key included).
[[nodiscard]] DetectedSubscription detectedSubscription(const Ledger& ledger, std::string_view key,
                                                        const Calendar& calendar);

// The key joins the ledger's ignored subscriptions, so that no later charge brings it back.
void ignoreSubscription(Ledger& ledger, const DetectedSubscription& subscription);

// An expense rule with the subscription's amount, category, account and frequency, its name as
// the note, starting at the next expected charge.
[[nodiscard]] RecurringRule recurringRuleFor(const DetectedSubscription& subscription);

// Adds that rule. SubscriptionError alreadyRecurring when the latest charge came from a rule or a
// rule with the same description is already there (one made from it, whose first charge is
// still to come).
void makeSubscriptionRecurring(Ledger& ledger, const DetectedSubscription& subscription);

}  // namespace vantello
