#pragma once
// Charges that come back at a regular pace (streaming, gym, insurance), found in the history:
// expenses with the same description key and a similar amount, every week, month or year.
// Detection is a pure function of the ledger; keys the user has ignored never come back.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/RecurringRule.hpp"

#include <optional>
#include <string>
#include <vector>

namespace vantello {

struct DetectedSubscription {
    std::string id;  // the charges' description key; what the ledger's ignoredSubscriptions keeps
    std::string name;
    std::string categoryID;
    std::string accountID;
    RecurringRule::Frequency frequency = RecurringRule::Frequency::monthly;
    Decimal amount;                         // the latest charge
    std::optional<Decimal> previousAmount;  // the charge before it, when the price changed
    int occurrences = 0;
    Instant lastDate;
    Instant nextExpected;      // lastDate plus one week, month or year
    bool isRecurring = false;  // the latest charge came from a recurring rule

    // Weekly × 52 ÷ 12 and yearly ÷ 12, rounded to cents (plain).
    [[nodiscard]] Decimal monthlyCost() const;
    // Weekly × 52, monthly × 12; not rounded.
    [[nodiscard]] Decimal yearlyCost() const;
    // The latest charge is above a positive previous one raised by 2 % and rounded to cents.
    [[nodiscard]] bool priceIncreased() const;

    bool operator==(const DetectedSubscription&) const = default;
};

// Every subscription in the ledger, highest yearly cost first, equal costs by name.
[[nodiscard]] std::vector<DetectedSubscription> detectSubscriptions(const Ledger& ledger, const Calendar& calendar);

// What the subscriptions cost in a year, all together: the sum of their yearly costs.
[[nodiscard]] Decimal yearlyTotal(const std::vector<DetectedSubscription>& subscriptions);

// The fields under their names, with the derived monthlyCost, yearlyCost and priceIncreased.
void to_json(Json& json, const DetectedSubscription& subscription);

}  // namespace vantello
