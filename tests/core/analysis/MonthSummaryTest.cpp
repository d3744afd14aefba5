#include "core/analysis/MonthSummary.hpp"

#include "core/ledger/LedgerAccounts.hpp"
#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using namespace testing;

// A year and a half of movements on two accounts, with transfers, budgets and rules, so that
// every part of the single walk has something to get wrong.
Ledger mixedLedger() {
    LedgerData data;
    Account main = Account::main();
    main.openingBalance = Decimal(500);
    data.accounts = {main, Account{"conto-b", "Carta", "creditcard", Decimal(50), {}}};
    const char* categories[] = {"spesa", "casa", "bollette", "svago", "salute", "trasporti", "ristoranti"};
    std::vector<Transaction> movements;
    for (int day = 0; day < 540; day += 3) {
        const Instant date = *rome().adding(CalendarUnit::day, day, at(2025, 1, 1, 19, 0));
        const std::string amount = std::to_string(5 + day % 47) + ".35";
        movements.push_back(expense(amount.c_str(), date, categories[day % 7], day % 2 ? "conto-b" : "principale"));
        if (day % 30 == 0) movements.push_back(income("1200", date));
        if (day % 45 == 0) movements.push_back(transfer("80", date, "principale", "conto-b"));
    }
    data.transactions = movements;
    data.budgets = {{"spesa", Decimal(100)}, {"svago", Decimal(20)}};
    data.recurringRules = {monthlyRule(TransactionKind::expense, "600", "casa", at(2025, 1, 28)),
                           monthlyRule(TransactionKind::income, "1500", "stipendio", at(2025, 1, 27))};
    return Ledger(data);
}

TEST(MonthSummary, EveryPartEqualsItsOwnFunction) {
    const Ledger ledger = mixedLedger();
    const Instant now = at(2026, 3, 20, 9, 0);
    for (const std::optional<std::string>& account : {std::optional<std::string>{}, std::optional<std::string>{"conto-b"}}) {
        const MonthSummary summary = monthSummary(ledger, now, now, rome(), account);
        const DateInterval month = rome().monthInterval(now);
        EXPECT_EQ(summary.totals, periodTotals(ledger, month));
        EXPECT_EQ(summary.previousTotals, periodTotals(ledger, rome().monthInterval(at(2026, 2, 20))));
        EXPECT_EQ(summary.breakdown, categoryBreakdown(ledger, month));
        EXPECT_EQ(summary.slices, categorySlices(categoryBreakdown(ledger, month)));
        EXPECT_EQ(summary.trend, monthTrend(ledger, 12, now, rome()));
        EXPECT_EQ(summary.budgets, budgetStatuses(ledger, month));
        EXPECT_EQ(summary.forecast, monthForecast(ledger, now, rome(), 3, account));
        EXPECT_EQ(summary.lowestBalance, lowestBalance(ledger, now, rome(), account));
    }
    // The walk's balance agrees with the ledger's own for one account.
    const MonthSummary card = monthSummary(ledger, now, now, rome(), "conto-b");
    const MonthForecast forecast = monthForecast(ledger, now, rome(), 3, "conto-b");
    EXPECT_EQ(card.lowestBalance,
              lowestBalance(ledger, now, rome(), accountBalance(ledger, "conto-b"), forecast, "conto-b"));

    const MonthSummary past = monthSummary(ledger, at(2025, 6, 1), now, rome());
    EXPECT_FALSE(past.forecast.has_value());
    EXPECT_EQ(past.totals, periodTotals(ledger, rome().monthInterval(at(2025, 6, 1))));
}

}  // namespace
}  // namespace vantello
