#include "core/planning/UnemploymentPeriod.hpp"

#include <gtest/gtest.h>

using namespace vantello;

namespace {

const Calendar rome("Europe/Rome");

Instant at(int day, int hour, int minute = 0) { return *rome.date({2025, 3, day}, hour, minute); }

}  // namespace

TEST(UnemploymentPeriod, BothEndDaysAreWithoutWork) {
    // Recorded at odd times of day: the comparison is by calendar day.
    const std::vector<UnemploymentPeriod> periods{{Uuid{}, at(1, 18), at(10, 9), ""}};
    EXPECT_FALSE(isUnemployed(periods, *rome.adding(CalendarUnit::day, -1, at(1, 0)), rome));
    EXPECT_TRUE(isUnemployed(periods, at(1, 0), rome));
    EXPECT_TRUE(isUnemployed(periods, at(10, 23, 30), rome));
    EXPECT_FALSE(isUnemployed(periods, at(11, 0), rome));
}

TEST(UnemploymentPeriod, OpenPeriodCoversEveryLaterDay) {
    const std::vector<UnemploymentPeriod> periods{{Uuid{}, at(10, 0), at(12, 0), ""}, {Uuid{}, at(20, 12), {}, ""}};
    EXPECT_FALSE(isUnemployed(periods, at(15, 12), rome));
    EXPECT_TRUE(isUnemployed(periods, at(20, 0), rome));
    EXPECT_TRUE(isUnemployed(periods, *rome.adding(CalendarUnit::year, 3, at(20, 0)), rome));
    EXPECT_FALSE(isUnemployed({}, at(20, 0), rome));
}
