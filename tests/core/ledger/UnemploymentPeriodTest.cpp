#include "core/ledger/UnemploymentPeriod.hpp"
#include "support/Dates.hpp"

#include <gtest/gtest.h>

using namespace vantello;
using vantello::testing::at;
using vantello::testing::rome;

TEST(UnemploymentPeriod, BothEndDaysAreWithoutWork) {
    // Recorded at odd times of day: the comparison is by calendar day.
    const std::vector<UnemploymentPeriod> periods{{Uuid{}, at(2025, 3, 1, 18), at(2025, 3, 10, 9), ""}};
    EXPECT_FALSE(isUnemployed(periods, *rome().adding(CalendarUnit::day, -1, at(2025, 3, 1, 0)), rome()));
    EXPECT_TRUE(isUnemployed(periods, at(2025, 3, 1, 0), rome()));
    EXPECT_TRUE(isUnemployed(periods, at(2025, 3, 10, 23, 30), rome()));
    EXPECT_FALSE(isUnemployed(periods, at(2025, 3, 11, 0), rome()));
}

TEST(UnemploymentPeriod, OpenPeriodCoversEveryLaterDay) {
    const std::vector<UnemploymentPeriod> periods{{Uuid{}, at(2025, 3, 10, 0), at(2025, 3, 12, 0), ""},
                                                  {Uuid{}, at(2025, 3, 20, 12), {}, ""}};
    EXPECT_FALSE(isUnemployed(periods, at(2025, 3, 15, 12), rome()));
    EXPECT_TRUE(isUnemployed(periods, at(2025, 3, 20, 0), rome()));
    EXPECT_TRUE(isUnemployed(periods, *rome().adding(CalendarUnit::year, 3, at(2025, 3, 20, 0)), rome()));
    EXPECT_FALSE(isUnemployed({}, at(2025, 3, 20, 0), rome()));
}
