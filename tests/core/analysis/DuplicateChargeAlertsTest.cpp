#include "core/analysis/DuplicateChargeAlerts.hpp"

#include "support/Dates.hpp"
#include "support/ItalianLocale.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace vantello {
namespace {

using testing::at;
using testing::rome;
using std::chrono::hours;

const Instant now = at(2025, 3, 20);
constexpr hours day{24};

Transaction charge(Instant date, std::string note, Decimal amount = Decimal(450, -2)) {
    Transaction made;
    made.id = Uuid::random();
    made.kind = TransactionKind::expense;
    made.amount = amount;
    made.date = date;
    made.categoryID = "ristoranti";
    made.note = std::move(note);
    return made;
}

std::vector<SmartAlert> alertsFor(const std::vector<Transaction>& transactions) {
    LedgerData data;
    data.transactions = transactions;
    return duplicateChargeAlerts(Ledger(data), now, rome());
}

TEST(DuplicateChargeAlerts, SameAmountAndNoteWithinThreeDays) {
    const testing::ItalianLocale italian;
    const Transaction first = charge(at(2025, 3, 10, 9), "BAR CENTRALE 12");
    const Transaction second = charge(at(2025, 3, 12, 9), "Bar centrale 7");
    const auto alerts = alertsFor({second, first});
    ASSERT_EQ(alerts.size(), 1u);
    EXPECT_EQ(alerts[0].id, "doppio-" + first.id.text() + "-" + second.id.text());
    EXPECT_EQ(alerts[0].kind, SmartAlert::Kind::possibleDuplicate);
    EXPECT_EQ(alerts[0].title, "Possibile addebito doppio");
    EXPECT_EQ(testing::withPlainSpaces(alerts[0].message),
              "«BAR CENTRALE 12» da 4,50 € compare due volte, il 10 mar 2025 e il 12 mar 2025.");
    EXPECT_EQ(alerts[0].transactionIDs, (std::vector<Uuid>{first.id, second.id}));

    EXPECT_TRUE(alertsFor({first, charge(at(2025, 3, 14, 9), "Bar centrale 7")}).empty());  // four days
    EXPECT_TRUE(alertsFor({first, charge(at(2025, 3, 11), "BAR CENTRALE", Decimal(451, -2))}).empty());
    EXPECT_TRUE(alertsFor({first, charge(at(2025, 3, 11), "BAR STAZIONE 12")}).empty());
}

TEST(DuplicateChargeAlerts, ThreeEqualChargesGiveTwoPairs) {
    const Transaction a = charge(at(2025, 3, 10), "Netflix");
    const Transaction b = charge(at(2025, 3, 11), "NETFLIX");
    const Transaction c = charge(at(2025, 3, 12), "netflix");
    const auto alerts = alertsFor({c, a, b});
    ASSERT_EQ(alerts.size(), 2u);
    EXPECT_EQ(alerts[0].transactionIDs, (std::vector<Uuid>{a.id, b.id}));
    EXPECT_EQ(alerts[1].transactionIDs, (std::vector<Uuid>{b.id, c.id}));
}

TEST(DuplicateChargeAlerts, OnlyRecentHandMadeExpensesWithANoteAreSuspected) {
    // 29 days back is inside the window, 31 is not; a day ahead is, two are not.
    EXPECT_EQ(alertsFor({charge(now - 29 * day, "Bar"), charge(now - 28 * day, "Bar")}).size(), 1u);
    EXPECT_TRUE(alertsFor({charge(now - 31 * day, "Bar"), charge(now - 29 * day, "Bar")}).empty());
    EXPECT_EQ(alertsFor({charge(now, "Bar"), charge(now + day, "Bar")}).size(), 1u);
    EXPECT_TRUE(alertsFor({charge(now, "Bar"), charge(now + 2 * day, "Bar")}).empty());

    Transaction generated = charge(now - day, "Palestra");
    generated.recurringRuleID = Uuid::random();
    EXPECT_TRUE(alertsFor({generated, charge(now, "Palestra")}).empty());
    Transaction transfer = charge(now - day, "Giroconto");
    transfer.categoryID = "giroconto";
    transfer.transferToAccountID = "conto-risparmi";
    EXPECT_TRUE(alertsFor({transfer, charge(now, "Giroconto")}).empty());
    Transaction income = charge(now - day, "Rimborso");
    income.kind = TransactionKind::income;
    income.categoryID = "altre-entrate";
    EXPECT_TRUE(alertsFor({income, charge(now, "Rimborso")}).empty());
    EXPECT_TRUE(alertsFor({charge(now - day, ""), charge(now, "")}).empty());
}

}  // namespace
}  // namespace vantello
