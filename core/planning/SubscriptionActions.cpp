#include "core/planning/SubscriptionActions.hpp"

#include "core/analysis/DescriptionKey.hpp"
#include "core/ledger/LedgerRecurring.hpp"
#include "core/planning/SubscriptionError.hpp"

#include <algorithm>
#include <string>

namespace vantello {

namespace {

bool hasRuleFor(const Ledger& ledger, const DetectedSubscription& subscription) {
    return std::ranges::any_of(ledger.recurringRules(), [&](const RecurringRule& rule) {
        return rule.kind == TransactionKind::expense && descriptionKey(rule.note) == subscription.id;
    });
}

}  // namespace

DetectedSubscription detectedSubscription(const Ledger& ledger, std::string_view key, const Calendar& calendar) {
    for (DetectedSubscription& subscription : detectSubscriptions(ledger, calendar)) {
        if (subscription.id == key) return std::move(subscription);
    }
    throw SubscriptionError(SubscriptionError::Code::notFound);
}

void ignoreSubscription(Ledger& ledger, const DetectedSubscription& subscription) {
    ledger.change([&](LedgerData& data) { data.ignoredSubscriptions.insert(subscription.id); });
}

RecurringRule recurringRuleFor(const DetectedSubscription& subscription) {
    RecurringRule rule;
    rule.id = Uuid::random();
    rule.kind = TransactionKind::expense;
    rule.amount = subscription.amount;
    rule.categoryID = subscription.categoryID;
    rule.accountID = subscription.accountID;
    rule.note = subscription.name;
    rule.frequency = subscription.frequency;
    rule.startDate = subscription.nextExpected;
    return rule;
}

void makeSubscriptionRecurring(Ledger& ledger, const DetectedSubscription& subscription) {
    if (subscription.isRecurring || hasRuleFor(ledger, subscription)) {
        throw SubscriptionError(SubscriptionError::Code::alreadyRecurring);
    }
    addRecurringRule(ledger, recurringRuleFor(subscription));
}

}  // namespace vantello
