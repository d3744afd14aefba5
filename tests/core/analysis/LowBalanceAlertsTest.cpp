#include "core/analysis/LowBalanceAlerts.hpp"

#include "core/ledger/LedgerAccounts.hpp"
#include "support/Dates.hpp"
#include "support/ItalianLocale.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using testing::at;
using testing::expense;
using testing::rome;

TEST(LowBalanceAlerts, OnlyABalanceStrictlyBelowTheThreshold) {
    const testing::ItalianLocale italian;
    Ledger ledger;
    const Account card = addAccount(ledger, "Carta", "creditcard", 150, Decimal(100));
    ledger.add(expense("50", at(2025, 3, 2), "spesa", card.id));
    ledger.add(expense("500", at(2025, 3, 2)));  // far below zero, but the main account has no threshold
    EXPECT_TRUE(lowBalanceAlerts(ledger, at(2025, 3, 20), rome()).empty());

    ledger.add(expense("0.01", at(2025, 3, 2), "spesa", card.id));
    const auto alerts = lowBalanceAlerts(ledger, at(2025, 3, 20), rome());
    ASSERT_EQ(alerts.size(), 1u);
    EXPECT_EQ(alerts[0].id, "saldo-basso-" + card.id + "-2025-03");
    EXPECT_EQ(alerts[0].kind, SmartAlert::Kind::lowBalance);
    EXPECT_EQ(alerts[0].title, "Saldo basso: Carta");
    EXPECT_EQ(testing::withPlainSpaces(alerts[0].message),
              "Il saldo è 99,99 €, sotto la soglia di 100,00 € che hai scelto.");
    // The month in the id brings a dismissed warning back next month.
    EXPECT_EQ(lowBalanceAlerts(ledger, at(2025, 4, 1, 0, 30), rome())[0].id, "saldo-basso-" + card.id + "-2025-04");
}

}  // namespace
}  // namespace vantello
