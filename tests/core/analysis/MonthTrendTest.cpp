#include "core/analysis/MonthTrend.hpp"

#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using namespace testing;

TEST(MonthTrend, TwelveMonthsOldestFirstInTheUsersZone) {
    LedgerData data;
    data.transactions = std::vector{
        expense("5", at(2025, 4, 1, 0, 30)),     // still March in UTC: the first month of the trend
        expense("7", at(2025, 3, 31, 23, 59)),  // before the trend
        income("100", at(2026, 3, 31, 23, 0)),  // the last month
        expense("9", at(2026, 4, 1, 0, 0)),     // after it
        transfer("50", at(2025, 10, 3), std::string(mainAccountID), "conto-b"),
    };
    const std::vector<MonthTotals> trend = monthTrend(Ledger(data), 12, at(2026, 3, 31), rome());
    ASSERT_EQ(trend.size(), 12U);
    EXPECT_EQ(trend.front(), (MonthTotals{at(2025, 4, 1, 0, 0), Decimal(), Decimal(5)}));
    EXPECT_EQ(trend.back(), (MonthTotals{at(2026, 3, 1, 0, 0), Decimal(100), Decimal()}));
    EXPECT_EQ(trend[6].month, at(2025, 10, 1, 0, 0));
    EXPECT_EQ(trend[6].expenses, Decimal());
}

}  // namespace
}  // namespace vantello
