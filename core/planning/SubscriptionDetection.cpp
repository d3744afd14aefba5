#include "core/planning/SubscriptionDetection.hpp"

#include "core/analysis/DescriptionKey.hpp"
#include "core/analysis/PeriodTotals.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>

namespace vantello {

namespace {

using Frequency = RecurringRule::Frequency;
using Charges = std::vector<const Transaction*>;

// Lets the groups be looked up by a view of the key being read.
struct KeyHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view key) const { return std::hash<std::string_view>{}(key); }
};

// How often a group comes back, as told by its median gap in days, and what it takes to believe it.
struct Cadence {
    Frequency frequency;
    CalendarUnit unit;
    std::size_t minimumCharges;
    int toleranceDays;
};

std::optional<Cadence> cadenceOf(int medianGapDays) {
    if (medianGapDays >= 6 && medianGapDays <= 8) return Cadence{Frequency::weekly, CalendarUnit::weekOfYear, 4, 2};
    if (medianGapDays >= 26 && medianGapDays <= 35) return Cadence{Frequency::monthly, CalendarUnit::month, 3, 6};
    if (medianGapDays >= 350 && medianGapDays <= 380) return Cadence{Frequency::yearly, CalendarUnit::year, 2, 20};
    return std::nullopt;
}

// The element at index count ÷ 2 of the sorted values (the upper median for an even count).
template <typename Value>
Value medianOf(std::vector<Value> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Every charge within 25 % of the median charge.
bool amountsAreSimilar(const Charges& charges) {
    std::vector<double> amounts;
    amounts.reserve(charges.size());
    for (const Transaction* charge : charges) amounts.push_back(charge->amount.toDouble());
    const double median = medianOf(amounts);
    return std::ranges::all_of(amounts, [median](double amount) { return std::abs(amount - median) <= 0.25 * median; });
}

// The cadence of charges sorted by date, when at least three quarters of the gaps keep to it.
std::optional<Cadence> regularCadence(const Charges& charges, const Calendar& calendar) {
    std::vector<int> gaps;
    gaps.reserve(charges.size() - 1);
    for (std::size_t index = 1; index < charges.size(); ++index) {
        gaps.push_back(calendar.wholeDaysBetween(charges[index - 1]->date, charges[index]->date));
    }
    const int medianGap = medianOf(gaps);
    const std::optional<Cadence> cadence = cadenceOf(medianGap);
    if (!cadence || charges.size() < cadence->minimumCharges) return std::nullopt;
    const auto regular = std::ranges::count_if(
        gaps, [&](int gap) { return std::abs(gap - medianGap) <= cadence->toleranceDays; });
    if (static_cast<std::size_t>(regular) * 4 < gaps.size() * 3) return std::nullopt;
    return cadence;
}

std::optional<DetectedSubscription> subscriptionOf(const std::string& key, Charges& charges,
                                                   const Calendar& calendar) {
    if (!amountsAreSimilar(charges)) return std::nullopt;
    // The ledger keeps its movements newest first as a rule, so reversing usually sorts them.
    std::ranges::reverse(charges);
    const auto byDate = [](const Transaction* charge) { return charge->date; };
    if (!std::ranges::is_sorted(charges, {}, byDate)) std::ranges::stable_sort(charges, {}, byDate);
    const std::optional<Cadence> cadence = regularCadence(charges, calendar);
    if (!cadence) return std::nullopt;
    const Transaction& latest = *charges.back();
    const std::optional<Instant> next = calendar.adding(cadence->unit, 1, latest.date);
    if (!next) return std::nullopt;

    const Transaction& before = *charges[charges.size() - 2];
    return DetectedSubscription{.id = key,
                                .name = latest.note,
                                .categoryID = latest.categoryID,
                                .accountID = latest.accountID,
                                .frequency = cadence->frequency,
                                .amount = latest.amount,
                                .previousAmount = before.amount != latest.amount
                                                      ? std::optional(before.amount)
                                                      : std::nullopt,
                                .occurrences = static_cast<int>(charges.size()),
                                .lastDate = latest.date,
                                .nextExpected = *next,
                                .isRecurring = latest.recurringRuleID.has_value()};
}

}  // namespace

Decimal DetectedSubscription::monthlyCost() const {
    switch (frequency) {
        case Frequency::weekly: return (amount * 52).dividedBy(12)->rounded(2);
        case Frequency::monthly: return amount;
        case Frequency::yearly: return amount.dividedBy(12)->rounded(2);
    }
    return amount;
}

Decimal DetectedSubscription::yearlyCost() const {
    switch (frequency) {
        case Frequency::weekly: return amount * 52;
        case Frequency::monthly: return amount * 12;
        case Frequency::yearly: return amount;
    }
    return amount;
}

bool DetectedSubscription::priceIncreased() const {
    // The threshold is a price, so it is taken in cents: 9.99 rising to 10.19 (2.002 %) stays
    // within 10.19, the threshold of 9.99 × 1.02 = 10.1898.
    return previousAmount && previousAmount->sign() > 0 && amount > (*previousAmount * Decimal(102, -2)).rounded(2);
}

std::vector<DetectedSubscription> detectSubscriptions(const Ledger& ledger, const Calendar& calendar) {
    // Charges grouped by description key, as pointers into the ledger's movements; a key is
    // copied only for a group's first charge.
    std::unordered_map<std::string, Charges, KeyHash, std::equal_to<>> groups;
    std::string key;
    const auto& movements = ledger.transactions();
    // The notes' text lies scattered over the heap; asking for it a few movements ahead hides
    // most of the wait for memory.
    constexpr std::ptrdiff_t lookAhead = 8;
    auto ahead = movements.begin();
    for (std::ptrdiff_t step = 0; step < lookAhead && ahead != movements.end(); ++step) ++ahead;
    for (const Transaction& transaction : movements) {
        if (ahead != movements.end()) {
            __builtin_prefetch(ahead->note.data());
            ++ahead;
        }
        if (transaction.kind != TransactionKind::expense || !countsInTotals(transaction)) continue;
        writeDescriptionKey(transaction.note, key);
        // A note without two letters in a row names nothing that could come back.
        if (key.empty()) continue;
        auto group = groups.find(std::string_view(key));
        if (group == groups.end()) group = groups.emplace(key, Charges{}).first;
        group->second.push_back(&transaction);
    }

    const std::set<std::string>& ignored = ledger.data().ignoredSubscriptions;
    std::vector<DetectedSubscription> found;
    for (auto& [key, charges] : groups) {
        if (charges.size() < 2 || ignored.contains(key)) continue;
        if (auto subscription = subscriptionOf(key, charges, calendar)) found.push_back(std::move(*subscription));
    }
    std::ranges::sort(found, [](const DetectedSubscription& left, const DetectedSubscription& right) {
        const Decimal leftCost = left.yearlyCost();
        const Decimal rightCost = right.yearlyCost();
        if (leftCost != rightCost) return leftCost > rightCost;
        return left.name < right.name;
    });
    return found;
}

Decimal yearlyTotal(const std::vector<DetectedSubscription>& subscriptions) {
    Decimal total;
    for (const DetectedSubscription& subscription : subscriptions) total += subscription.yearlyCost();
    return total;
}

void to_json(Json& json, const DetectedSubscription& subscription) {
    json = Json::object();
    json["id"] = subscription.id;
    json["name"] = subscription.name;
    json["categoryID"] = subscription.categoryID;
    json["accountID"] = subscription.accountID;
    json["frequency"] = subscription.frequency;
    json["amount"] = subscription.amount;
    JsonCoding::putIfPresent(json, "previousAmount", subscription.previousAmount);
    json["occurrences"] = subscription.occurrences;
    json["lastDate"] = subscription.lastDate;
    json["nextExpected"] = subscription.nextExpected;
    json["isRecurring"] = subscription.isRecurring;
    json["monthlyCost"] = subscription.monthlyCost();
    json["yearlyCost"] = subscription.yearlyCost();
    json["priceIncreased"] = subscription.priceIncreased();
}

}  // namespace vantello
