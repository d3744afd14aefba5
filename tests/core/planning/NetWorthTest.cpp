#include "core/planning/NetWorth.hpp"
#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

#include <chrono>

namespace vantello {
namespace {

using testing::amount;
using testing::at;
using testing::expense;
using testing::income;
using testing::rome;

Asset assetValued(std::vector<Asset::Valuation> valuations) {
    return Asset{Uuid::random(), "Auto", "car", std::move(valuations)};
}

Loan loanFrom(Instant firstPayment) {
    Loan loan;
    loan.id = Uuid::random();
    loan.name = "Prestito";
    loan.principal = amount("1200");
    loan.months = 12;
    loan.firstPayment = firstPayment;
    return loan;
}

// A card beside the main account, movements on both and on an account that no longer exists,
// a transfer between them, a car valued twice and a loan paid monthly from February 2026.
Ledger sampleLedger(Instant now) {
    LedgerData data;
    data.accounts = {Account::main(), Account{"conto-carta", "Carta", "creditcard", amount("50"), std::nullopt}};
    data.transactions = std::vector{income("1000", at(2025, 11, 30, 23, 59, 59)), expense("40", at(2025, 12, 1, 0)),
                                    expense("25", at(2026, 1, 10), "spesa", "conto-carta"),
                                    testing::transfer("300", at(2026, 2, 2), "principale", "conto-carta"),
                                    testing::transfer("70", at(2026, 2, 3), "conto-carta", "conto-chiuso"),
                                    income("500", at(2026, 3, 5), "stipendio", "conto-chiuso"),
                                    expense("15", now), expense("999", now + std::chrono::seconds(1))};
    data.assets = {assetValued({{at(2025, 10, 1), amount("9000")}, {at(2026, 1, 20), amount("8500")}}),
                   assetValued({{now + std::chrono::hours(24), amount("100")}})};
    data.loans = {loanFrom(at(2026, 2, 15))};
    return Ledger(std::move(data));
}

TEST(NetWorth, CountsBalancesLatestValuationsAndCapitalOwed) {
    const Instant now = at(2026, 4, 10, 12);
    const Ledger ledger = sampleLedger(now);
    // 50 + 1000 − 40 − 25 − 70 (to a closed account) − 15; the car's January value, nothing for
    // the asset valued tomorrow; 1200 less two instalments of 100.
    EXPECT_EQ(netWorth(ledger, now, rome()), (NetWorth{amount("900"), amount("8500"), amount("1000")}));
    // Before the loan's first payment its whole principal is owed.
    EXPECT_EQ(netWorth(ledger, at(2026, 2, 14), rome()).debts, amount("1200"));
    EXPECT_EQ(netWorth(ledger, at(2027, 2, 1), rome()).debts, Decimal());
}

TEST(NetWorth, HistoryHasTheLastSecondOfEachEarlierMonthThenNow) {
    const Instant now = at(2026, 4, 10, 12);
    const std::vector<NetWorthPoint> history = netWorthHistory(sampleLedger(now), 12, now, rome());
    ASSERT_EQ(history.size(), 12U);
    EXPECT_EQ(history.front().date, at(2025, 5, 31, 23, 59, 59));
    EXPECT_EQ(history[9].date, at(2026, 2, 28, 23, 59, 59));
    EXPECT_EQ(history[10].date, at(2026, 3, 31, 23, 59, 59));  // summer time by then
    EXPECT_EQ(history.back().date, now);
    ASSERT_EQ(netWorthHistory(sampleLedger(now), 0, now, rome()).size(), 1U);
}

TEST(NetWorth, HistoryEqualsTheNetWorthAtEachOfItsMoments) {
    for (const Instant now : {at(2026, 4, 10, 12), at(2026, 3, 1, 0), at(2025, 12, 31, 23, 59, 59)}) {
        const Ledger ledger = sampleLedger(now);
        for (const NetWorthPoint& point : netWorthHistory(ledger, 12, now, rome())) {
            EXPECT_EQ(point.value, netWorth(ledger, point.date, rome())) << unixSeconds(point.date);
        }
    }
}

TEST(NetWorth, MonthWithoutValuationKeepsTheEarlierValue) {
    const Instant now = at(2026, 4, 10, 12);
    const std::vector<NetWorthPoint> history = netWorthHistory(sampleLedger(now), 4, now, rome());
    // January's valuation still counts at the end of February and of March.
    EXPECT_EQ(history[0].value.assets, amount("8500"));
    EXPECT_EQ(history[1].value.assets, amount("8500"));
    EXPECT_EQ(history[2].value.assets, amount("8500"));
}

}  // namespace
}  // namespace vantello
