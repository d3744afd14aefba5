#include "core/planning/SubscriptionDetection.hpp"

#include "core/ledger/LedgerRecurring.hpp"
#include "core/planning/SubscriptionActions.hpp"
#include "core/planning/SubscriptionError.hpp"
#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace vantello {
namespace {

using Frequency = RecurringRule::Frequency;
using testing::amount;
using testing::at;
using testing::rome;

Transaction charge(const char* value, Instant date, std::string note = "NETFLIX.COM 0800") {
    return testing::noted(testing::expense(value, date, "svago"), std::move(note));
}

Ledger ledgerWith(const std::vector<Transaction>& charges) {
    LedgerData data;
    data.transactions = charges;
    return Ledger(data);
}

std::vector<DetectedSubscription> detected(const std::vector<Transaction>& charges) {
    return detectSubscriptions(ledgerWith(charges), rome());
}

TEST(SubscriptionDetection, MonthlyChargesDriftingByDaysWithOnePriceRise) {
    Transaction latest = charge("10.99", at(2025, 5, 4), "Netflix.com 1234");
    latest.accountID = "conto-carta";
    const auto found = detected({charge("9.99", at(2025, 1, 3)), charge("9.99", at(2025, 2, 6)),
                                 charge("9.99", at(2025, 3, 2)), charge("9.99", at(2025, 4, 5)), latest,
                                 testing::noted(testing::transfer("9.99", at(2025, 5, 20), "principale", "conto-carta"), "NETFLIX.COM"),
                                 testing::noted(testing::income("9.99", at(2025, 6, 3)), "NETFLIX.COM")});
    ASSERT_EQ(found.size(), 1u);
    const DetectedSubscription& netflix = found[0];
    EXPECT_EQ(netflix.id, "netflix com");
    EXPECT_EQ(netflix.name, "Netflix.com 1234");
    EXPECT_EQ(netflix.accountID, "conto-carta");
    EXPECT_EQ(netflix.frequency, Frequency::monthly);
    EXPECT_EQ(netflix.occurrences, 5);
    EXPECT_EQ(netflix.amount, amount("10.99"));
    EXPECT_EQ(netflix.previousAmount, amount("9.99"));
    EXPECT_TRUE(netflix.priceIncreased());
    EXPECT_EQ(netflix.lastDate, at(2025, 5, 4));
    EXPECT_EQ(netflix.nextExpected, at(2025, 6, 4));
    EXPECT_EQ(netflix.monthlyCost(), amount("10.99"));
    EXPECT_EQ(netflix.yearlyCost(), amount("131.88"));
}

TEST(SubscriptionDetection, EveryChargeWithinAQuarterOfTheMedian) {
    std::vector<Transaction> charges{charge("12.99", at(2025, 1, 10)), charge("12.99", at(2025, 2, 10)),
                                     charge("12.99", at(2025, 3, 10)), charge("12.99", at(2025, 4, 10))};
    EXPECT_EQ(detected(charges).size(), 1u);
    charges[1].amount = amount("9.49");  // 27 % under the median 12.99
    EXPECT_TRUE(detected(charges).empty());
    charges[1].amount = amount("9.75");  // 24.9 % under
    EXPECT_EQ(detected(charges).size(), 1u);
}

TEST(SubscriptionDetection, PriceRiseFlaggedAboveTwoPercent) {
    DetectedSubscription subscription;
    subscription.previousAmount = amount("9.99");
    subscription.amount = amount("10.19");
    EXPECT_FALSE(subscription.priceIncreased());
    subscription.amount = amount("10.20");
    EXPECT_TRUE(subscription.priceIncreased());
    subscription.previousAmount = Decimal();
    EXPECT_FALSE(subscription.priceIncreased());
}

TEST(SubscriptionDetection, CadenceNeedsEnoughRegularCharges) {
    const auto yearly = detected({charge("49.99", at(2024, 3, 15)), charge("49.99", at(2025, 3, 10))});
    ASSERT_EQ(yearly.size(), 1u);
    EXPECT_EQ(yearly[0].frequency, Frequency::yearly);
    EXPECT_EQ(yearly[0].nextExpected, at(2026, 3, 10));
    EXPECT_EQ(yearly[0].monthlyCost(), amount("4.17"));

    EXPECT_TRUE(detected({charge("9.99", at(2025, 1, 3)), charge("9.99", at(2025, 2, 3))}).empty());
    const std::vector<Transaction> threeWeeks{charge("5", at(2025, 3, 1)), charge("5", at(2025, 3, 8)),
                                              charge("5", at(2025, 3, 15))};
    EXPECT_TRUE(detected(threeWeeks).empty());
    std::vector<Transaction> fourWeeks = threeWeeks;
    fourWeeks.push_back(charge("5", at(2025, 3, 22)));
    const auto weekly = detected(fourWeeks);
    ASSERT_EQ(weekly.size(), 1u);
    EXPECT_EQ(weekly[0].frequency, Frequency::weekly);
    EXPECT_EQ(weekly[0].monthlyCost(), amount("21.67"));

    // Gaps of 30, 31, 29 and 60 days: three of four keep to the month.
    const auto skipped = detected({charge("9.99", at(2025, 1, 1)), charge("9.99", at(2025, 1, 31)),
                                   charge("9.99", at(2025, 3, 3)), charge("9.99", at(2025, 4, 1)),
                                   charge("9.99", at(2025, 5, 31))});
    ASSERT_EQ(skipped.size(), 1u);
    EXPECT_EQ(skipped[0].frequency, Frequency::monthly);
    EXPECT_TRUE(detected({charge("9.99", at(2025, 1, 1)), charge("9.99", at(2025, 1, 31)),
                          charge("9.99", at(2025, 3, 20)), charge("9.99", at(2025, 4, 19))})
                    .empty());  // gaps 30, 48, 30: two of three
}

TEST(SubscriptionDetection, ListedByYearlyCostThenName) {
    std::vector<Transaction> charges;
    for (int month = 1; month <= 3; ++month) {
        charges.push_back(charge("10", at(2025, month, 5), "Palestra"));
        charges.push_back(charge("10", at(2025, month, 6), "Dropbox"));
    }
    charges.push_back(charge("200", at(2024, 2, 1), "Assicurazione"));
    charges.push_back(charge("200", at(2025, 2, 1), "Assicurazione"));
    const std::vector<DetectedSubscription> found = detected(charges);
    std::vector<std::string> names;
    for (const DetectedSubscription& subscription : found) names.push_back(subscription.name);
    EXPECT_EQ(names, (std::vector<std::string>{"Assicurazione", "Dropbox", "Palestra"}));
    // 200 a year and twice 10 a month.
    EXPECT_EQ(yearlyTotal(found), amount("440"));
}

TEST(SubscriptionActions, IgnoredKeyNeverComesBack) {
    Ledger ledger = ledgerWith({charge("9.99", at(2025, 1, 3)), charge("9.99", at(2025, 2, 3)), charge("9.99", at(2025, 3, 3))});
    ignoreSubscription(ledger, detectedSubscription(ledger, "netflix com", rome()));
    EXPECT_EQ(ledger.data().ignoredSubscriptions, std::set<std::string>{"netflix com"});
    for (int month = 4; month <= 12; ++month) ledger.add(charge("9.99", at(2025, month, 3)));
    EXPECT_TRUE(detectSubscriptions(ledger, rome()).empty());
    EXPECT_THROW((void)detectedSubscription(ledger, "netflix com", rome()), SubscriptionError);
}

TEST(SubscriptionActions, RecurringRuleFromTheNextChargeOnlyOnce) {
    Ledger ledger = ledgerWith({charge("9.99", at(2025, 1, 3)), charge("9.99", at(2025, 2, 3)), charge("9.99", at(2025, 3, 3))});
    const DetectedSubscription netflix = detectedSubscription(ledger, "netflix com", rome());
    makeSubscriptionRecurring(ledger, netflix);
    ASSERT_EQ(ledger.recurringRules().size(), 1u);
    RecurringRule expected = recurringRuleFor(netflix);
    expected.id = ledger.recurringRules()[0].id;
    EXPECT_EQ(ledger.recurringRules()[0], expected);
    EXPECT_EQ(expected.startDate, at(2025, 4, 3));
    EXPECT_EQ(expected.note, "NETFLIX.COM 0800");
    EXPECT_EQ(expected.amount, amount("9.99"));

    try {
        makeSubscriptionRecurring(ledger, netflix);
        FAIL() << "a second rule for the same subscription";
    } catch (const SubscriptionError& error) {
        EXPECT_EQ(error.code(), SubscriptionError::Code::alreadyRecurring);
    }
    // Once the rule has charged, the subscription says so itself.
    generateDueTransactions(ledger, at(2025, 4, 10), rome());
    EXPECT_TRUE(detectedSubscription(ledger, "netflix com", rome()).isRecurring);
}

}  // namespace
}  // namespace vantello
