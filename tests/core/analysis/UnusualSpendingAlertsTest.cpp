#include "core/analysis/UnusualSpendingAlerts.hpp"

#include "support/Dates.hpp"
#include "support/ItalianLocale.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantello {
namespace {

using testing::at;
using testing::rome;

const Instant now = at(2025, 3, 20);

Transaction movement(Instant date, Decimal amount, std::string categoryID,
                     TransactionKind kind = TransactionKind::expense) {
    Transaction made;
    made.id = Uuid::random();
    made.kind = kind;
    made.amount = amount;
    made.date = date;
    made.categoryID = std::move(categoryID);
    return made;
}

// "svago" spending of the three months before March 2025 (nothing for a month left empty), and
// this month's.
std::vector<SmartAlert> alertsFor(const std::vector<Decimal>& earlier, Decimal spentNow,
                                  std::vector<Transaction> more = {}) {
    LedgerData data;
    for (std::size_t back = 0; back < earlier.size(); ++back) {
        const Instant day = *rome().adding(CalendarUnit::month, -static_cast<int>(back) - 1, now);
        if (earlier[back].sign() > 0) more.push_back(movement(day, earlier[back], "svago"));
    }
    more.push_back(movement(at(2025, 3, 2), spentNow, "svago"));
    data.transactions = more;
    return unusualSpendingAlerts(Ledger(data), now, rome());
}

TEST(UnusualSpendingAlerts, SpendingMustExceedHalfAsMuchAgainTheAverage) {
    const testing::ItalianLocale italian;
    EXPECT_TRUE(alertsFor({100, 100, 100}, 150).empty());
    const auto alerts = alertsFor({100, 100, 100}, Decimal(15001, -2));
    ASSERT_EQ(alerts.size(), 1u);
    EXPECT_EQ(alerts[0].id, "spesa-anomala-svago-2025-03");
    EXPECT_EQ(alerts[0].kind, SmartAlert::Kind::unusualSpending);
    EXPECT_EQ(alerts[0].title, "Spesa insolita: Svago");
    EXPECT_EQ(testing::withPlainSpaces(alerts[0].message),
              "Questo mese hai già speso 150,01 € in Svago, il 50% in più della tua media mensile (100,00 €).");
    EXPECT_TRUE(alerts[0].transactionIDs.empty());
}

TEST(UnusualSpendingAlerts, ExcessMustReachTwentyEuros) {
    EXPECT_TRUE(alertsFor({10, 10, 10}, 25).empty());
    EXPECT_EQ(alertsFor({10, 10, 10}, 30).size(), 1u);
}

TEST(UnusualSpendingAlerts, AverageCountsOnlyMonthsHoldingMovements) {
    // December is empty; February holds only a salary, so it counts with nothing spent.
    const std::vector<Transaction> salary{movement(at(2025, 2, 27), 1500, "stipendio", TransactionKind::income)};
    // Over two months the average is 50: 74 is not above 75, 76 is (over three it would be 33.33).
    EXPECT_TRUE(alertsFor({0, 100, 0}, 74, salary).empty());
    const testing::ItalianLocale italian;
    const auto alerts = alertsFor({0, 100, 0}, 76, salary);
    ASSERT_EQ(alerts.size(), 1u);
    EXPECT_NE(testing::withPlainSpaces(alerts[0].message).find("il 52% in più della tua media mensile (50,00 €)"),
              std::string::npos);
}

TEST(UnusualSpendingAlerts, NothingWithoutEarlierSpendingInTheCategory) {
    EXPECT_TRUE(alertsFor({}, 500).empty());  // no earlier month at all
    // Earlier months hold other spending only: this category's average is 0.
    Transaction transfer = movement(at(2025, 2, 5), 900, "giroconto");
    transfer.transferToAccountID = "conto-risparmi";
    EXPECT_TRUE(alertsFor({}, 500, {movement(at(2025, 2, 5), 80, "spesa"), transfer}).empty());
}

}  // namespace
}  // namespace vantello
