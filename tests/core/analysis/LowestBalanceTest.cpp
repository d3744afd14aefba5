#include "core/analysis/LowestBalance.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using namespace testing;

// Opening 1000, 100 spent in ten days (so 10 a day for the twenty left, no earlier months), rent
// of 600 on the 15th, salary of 1000 on the 27th, 100 moved to the card on the 20th.
LedgerData aprilLedger() {
    LedgerData data;
    Account main = Account::main();
    main.openingBalance = Decimal(1000);
    data.accounts = {main, Account{"conto-b", "Carta", "creditcard", {}, {}}};
    data.transactions = std::vector{expense("100", at(2026, 4, 3))};
    RecurringRule saving = monthlyRule(TransactionKind::expense, "100", "giroconto", at(2026, 1, 20));
    saving.transferToAccountID = "conto-b";
    data.recurringRules = {monthlyRule(TransactionKind::expense, "600", "casa", at(2026, 1, 15)),
                           monthlyRule(TransactionKind::income, "1000", "stipendio", at(2026, 1, 27)), saving};
    return data;
}

TEST(LowestBalance, TheDayBeforeTheSalaryAcrossAllAccounts) {
    const Ledger ledger(aprilLedger());
    // 900 − 600 − 16 days × 10; the transfer moves nothing between own accounts.
    EXPECT_EQ(lowestBalance(ledger, at(2026, 4, 10), rome()), (LowestBalance{Decimal(140), at(2026, 4, 26, 0, 0), {}}));
}

TEST(LowestBalance, OneAccountSeesItsTransfers) {
    const Ledger ledger(aprilLedger());
    EXPECT_EQ(lowestBalance(ledger, at(2026, 4, 10), rome(), "principale"),
              (LowestBalance{Decimal(40), at(2026, 4, 26, 0, 0), "principale"}));
    // The card never spends and only receives: today is its lowest.
    EXPECT_EQ(lowestBalance(ledger, at(2026, 4, 10), rome(), "conto-b"),
              (LowestBalance{Decimal(), at(2026, 4, 10, 0, 0), "conto-b"}));
}

TEST(LowestBalance, NoSalaryWhileOutOfWorkAndOnlyTodayOnTheLastDay) {
    LedgerData data = aprilLedger();
    data.unemploymentPeriods = {UnemploymentPeriod{Uuid::random(), at(2026, 4, 21, 0, 0), std::nullopt, ""}};
    const Ledger ledger(data);
    EXPECT_EQ(lowestBalance(ledger, at(2026, 4, 10), rome()), (LowestBalance{Decimal(100), at(2026, 4, 30, 0, 0), {}}));
    // On the last day, before noon, the salary still due today lifts the balance the same day.
    data.unemploymentPeriods.clear();
    data.recurringRules[1].startDate = at(2026, 1, 30);
    EXPECT_EQ(lowestBalance(Ledger(data), at(2026, 4, 30, 9, 0), rome()),
              (LowestBalance{Decimal(1900), at(2026, 4, 30, 0, 0), {}}));
}

}  // namespace
}  // namespace vantello
