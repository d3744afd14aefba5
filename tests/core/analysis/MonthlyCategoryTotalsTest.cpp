#include "core/analysis/MonthlyCategoryTotals.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using namespace testing;

TEST(MonthlyCategoryTotals, MonthsInTheUsersZoneWithGapsAndWithoutTransfers) {
    LedgerData data;
    data.accounts = {Account::main(), Account{"conto-2", "Carta", "creditcard", Decimal{}, std::nullopt}};
    Transaction shared = expense("100", at(2024, 1, 10));
    shared.shares = {{Uuid::random(), 60}};
    data.transactions = std::vector{
        // 00:30 on 1 April in Rome is still 31 March in UTC.
        expense("12.5", at(2024, 4, 1, 0, 30)),
        income("1800", at(2024, 1, 31, 23)),
        expense("0.05", at(2024, 1, 15), "spesa", "conto-2"),
        transfer("500", at(2024, 1, 20), "principale", "conto-2"),
        shared,
    };
    const Ledger ledger(data);

    const auto all = monthlyCategoryTotals(ledger, std::nullopt, rome());
    ASSERT_EQ(all.size(), 4U);  // January to April, February and March empty
    EXPECT_EQ(all[0].month, (CivilDate{2024, 1, 1}));
    EXPECT_EQ(all[0].expenses, (std::map<std::string, Decimal>{{"spesa", Decimal(10005, -2)}}));
    EXPECT_EQ(all[0].income, (std::map<std::string, Decimal>{{"stipendio", 1800}}));
    EXPECT_TRUE(all[1].expenses.empty() && all[2].income.empty());
    EXPECT_EQ(all[3].month, (CivilDate{2024, 4, 1}));
    EXPECT_EQ(all[3].expenses.at("spesa"), Decimal(1250, -2));

    const auto card = monthlyCategoryTotals(ledger, std::string("conto-2"), rome());
    ASSERT_EQ(card.size(), 1U);
    EXPECT_EQ(card[0].expenses.at("spesa"), Decimal(5, -2));
    EXPECT_TRUE(monthlyCategoryTotals(Ledger(), std::nullopt, rome()).empty());
}

}  // namespace
}  // namespace vantello
