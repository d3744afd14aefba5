#include "core/base/Calendar.hpp"

#include "core/base/Iso8601.hpp"
#include "support/Dates.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <stdexcept>

namespace vantello {
namespace {

using testing::rome;

Instant at(const char* text) {
    const auto moment = Iso8601::parse(text);
    EXPECT_TRUE(moment) << text;
    return moment.value_or(Instant{});
}

std::string utc(std::optional<Instant> moment) {
    return moment ? Iso8601::format(*moment) : "nothing";
}

TEST(Calendar, MonthsFromTheThirtyFirstClampToTheEndOfFebruaryInRome) {
    const Instant januaryEnd = at("2024-01-31T09:00:00Z");  // 10:00 CET
    EXPECT_EQ(utc(rome().adding(CalendarUnit::month, 1, januaryEnd)), "2024-02-29T09:00:00Z");
    EXPECT_EQ(utc(rome().adding(CalendarUnit::month, 2, januaryEnd)), "2024-03-31T08:00:00Z");
    EXPECT_EQ(utc(rome().adding(CalendarUnit::month, 13, januaryEnd)), "2025-02-28T09:00:00Z");
    EXPECT_EQ(utc(rome().adding(CalendarUnit::month, -1, at("2024-03-31T08:00:00Z"))),
              "2024-02-29T09:00:00Z");
    const Instant leapDay = at("2024-02-29T11:00:00Z");
    EXPECT_EQ(utc(rome().adding(CalendarUnit::year, 1, leapDay)), "2025-02-28T11:00:00Z");
    EXPECT_EQ(utc(rome().adding(CalendarUnit::year, 4, leapDay)), "2028-02-29T11:00:00Z");
    // Days and weeks keep the wall-clock time across the change to summer time.
    EXPECT_EQ(utc(rome().adding(CalendarUnit::weekOfYear, 1, at("2024-03-28T11:00:00Z"))),
              "2024-04-04T10:00:00Z");
    EXPECT_EQ(utc(rome().adding(CalendarUnit::day, -1, at("2024-03-31T10:00:00Z"))),
              "2024-03-30T11:00:00Z");
    EXPECT_EQ(utc(rome().adding(CalendarUnit::year, 1, at("9999-06-01T10:00:00Z"))), "nothing");
    EXPECT_EQ(utc(rome().adding(CalendarUnit::day, INT_MAX, leapDay)), "nothing");
}

TEST(Calendar, NoonOnClockChangeDaysInRomeIsTwelveOnTheWallClock) {
    EXPECT_EQ(utc(rome().noon(at("2024-03-30T00:30:00Z"))), "2024-03-30T11:00:00Z");
    EXPECT_EQ(utc(rome().noon(at("2024-03-31T00:30:00Z"))), "2024-03-31T10:00:00Z");
    EXPECT_EQ(utc(rome().noon(at("2024-03-31T21:30:00Z"))), "2024-03-31T10:00:00Z");
    EXPECT_EQ(utc(rome().noon(at("2024-10-26T23:30:00Z"))), "2024-10-27T11:00:00Z");
    EXPECT_EQ(utc(rome().date({2024, 10, 26}, 12)), "2024-10-26T10:00:00Z");
}

TEST(Calendar, SkippedWallTimeGivesTheNextMomentAndRepeatedOneTheFirstInRome) {
    EXPECT_EQ(utc(rome().date({2024, 3, 31}, 1, 59, 59)), "2024-03-31T00:59:59Z");
    EXPECT_EQ(utc(rome().date({2024, 3, 31}, 2, 30)), "2024-03-31T01:00:00Z");  // 03:00 CEST
    EXPECT_EQ(utc(rome().date({2024, 3, 31}, 3, 0)), "2024-03-31T01:00:00Z");
    EXPECT_EQ(utc(rome().date({2024, 10, 27}, 2, 30)), "2024-10-27T00:30:00Z");  // still CEST
    EXPECT_EQ(utc(rome().date({2024, 10, 27}, 3, 0)), "2024-10-27T02:00:00Z");
    EXPECT_EQ(rome().utcOffsetSeconds(at("2024-10-27T00:59:59Z")), 7200);
    EXPECT_EQ(rome().utcOffsetSeconds(at("2024-10-27T01:00:00Z")), 3600);
    // The second 02:30 stays itself when nothing is added, and moves a day as 02:30.
    const Instant secondTime = at("2024-10-27T01:30:00Z");
    EXPECT_EQ(rome().adding(CalendarUnit::day, 0, secondTime), secondTime);
    EXPECT_EQ(utc(rome().adding(CalendarUnit::day, 1, secondTime)), "2024-10-28T01:30:00Z");
}

TEST(Calendar, StartOfDayIsTheFirstExistingMomentWhenMidnightIsSkipped) {
    const Calendar saoPaulo("America/Sao_Paulo");  // 2018-11-04 began at 01:00 -02
    EXPECT_EQ(utc(saoPaulo.startOfDay(at("2018-11-04T15:00:00Z"))), "2018-11-04T03:00:00Z");
    EXPECT_EQ(utc(saoPaulo.date({2018, 11, 4})), "2018-11-04T03:00:00Z");
    const DateInterval thirdOfNovember = saoPaulo.dayInterval(at("2018-11-03T15:00:00Z"));
    EXPECT_EQ(utc(thirdOfNovember.start), "2018-11-03T03:00:00Z");
    EXPECT_EQ(utc(thirdOfNovember.end), "2018-11-04T03:00:00Z");
    const Calendar beirut("Asia/Beirut");  // 2024-03-31 began at 01:00 +03
    EXPECT_EQ(utc(beirut.startOfDay(at("2024-03-31T12:00:00Z"))), "2024-03-30T22:00:00Z");
}

TEST(Calendar, MonthAndYearIntervalsFollowTheWallClockInRome) {
    const DateInterval march = rome().monthInterval(at("2024-03-15T12:00:00Z"));
    EXPECT_EQ(utc(march.start), "2024-02-29T23:00:00Z");
    EXPECT_EQ(utc(march.end), "2024-03-31T22:00:00Z");
    EXPECT_TRUE(march.contains(at("2024-03-31T21:59:59Z")));
    EXPECT_FALSE(march.contains(at("2024-03-31T22:00:00Z")));
    EXPECT_EQ(rome().monthInterval(at("2024-03-31T22:30:00Z")).start, march.end);
    const DateInterval october = rome().monthInterval(at("2024-10-31T22:59:59Z"));
    EXPECT_EQ(utc(october.start), "2024-09-30T22:00:00Z");
    EXPECT_EQ(utc(october.end), "2024-10-31T23:00:00Z");
    const DateInterval year = rome().yearInterval(at("2024-07-01T00:00:00Z"));
    EXPECT_EQ(utc(year.start), "2023-12-31T23:00:00Z");
    EXPECT_EQ(utc(year.end), "2024-12-31T23:00:00Z");
}

TEST(Calendar, NextDayWithDayOfMonthPassesOverShortMonthsInRome) {
    const Instant february = at("2025-02-10T10:00:00Z");
    EXPECT_EQ(utc(rome().nextDayWithDayOfMonth(february, 31)), "2025-03-30T22:00:00Z");
    EXPECT_EQ(utc(rome().nextDayWithDayOfMonth(february, 30)), "2025-03-29T23:00:00Z");
    EXPECT_EQ(utc(rome().nextDayWithDayOfMonth(february, 10)), "2025-02-09T23:00:00Z");
    EXPECT_EQ(utc(rome().nextDayWithDayOfMonth(february, 9)), "2025-03-08T23:00:00Z");
    EXPECT_EQ(utc(rome().nextDayWithDayOfMonth(at("2024-02-10T10:00:00Z"), 29)),
              "2024-02-28T23:00:00Z");
    EXPECT_EQ(utc(rome().nextDayWithDayOfMonth(at("2024-12-20T10:00:00Z"), 15)),
              "2025-01-14T23:00:00Z");
    EXPECT_EQ(utc(rome().nextDayWithDayOfMonth(february, 0)), "nothing");
    EXPECT_EQ(utc(rome().nextDayWithDayOfMonth(february, 32)), "nothing");
}

TEST(Calendar, WholeMonthsAndDaysCountTheWallClockInRome) {
    EXPECT_EQ(rome().wholeMonthsBetween(at("2025-01-31T09:00:00Z"), at("2025-02-28T09:00:00Z")), 0);
    EXPECT_EQ(rome().wholeMonthsBetween(at("2025-01-31T09:00:00Z"), at("2025-03-01T09:00:00Z")), 1);
    EXPECT_EQ(rome().wholeMonthsBetween(at("2024-12-31T23:00:00Z"), at("2025-02-28T23:00:00Z")), 2);
    EXPECT_EQ(rome().wholeMonthsBetween(at("2025-02-28T23:00:00Z"), at("2024-12-31T23:00:00Z")), -2);
    EXPECT_EQ(rome().wholeMonthsBetween(at("2025-01-15T09:00:00Z"), at("2025-02-15T08:59:59Z")), 0);
    // 10:00 CET to 10:00 CEST is a whole month though the UTC time of day differs.
    EXPECT_EQ(rome().wholeMonthsBetween(at("2025-03-15T09:00:00Z"), at("2025-04-15T08:00:00Z")), 1);
    const Instant lateOnThe30th = at("2024-03-30T22:30:00Z");
    const Instant earlyOnThe31st = at("2024-03-30T23:30:00Z");
    EXPECT_EQ(rome().wholeDaysBetween(lateOnThe30th, earlyOnThe31st), 1);
    EXPECT_EQ(rome().wholeDaysBetween(earlyOnThe31st, lateOnThe30th), -1);
    EXPECT_EQ(rome().wholeDaysBetween(at("2024-01-01T12:00:00Z"), at("2024-12-31T01:00:00Z")), 365);
}

TEST(Calendar, RefusesImpossibleDatesAndUnknownZones) {
    for (const CivilDate day :
         {CivilDate{2025, 2, 29}, CivilDate{2024, 2, 30}, CivilDate{2024, 4, 31},
          CivilDate{2024, 13, 1}, CivilDate{2024, 0, 1}, CivilDate{0, 1, 1}, CivilDate{10000, 1, 1}}) {
        EXPECT_FALSE(rome().date(day)) << day.year << "-" << day.month << "-" << day.day;
    }
    EXPECT_FALSE(rome().date({2024, 1, 1}, 24));
    EXPECT_FALSE(rome().date({2024, 1, 1}, 0, 60));
    EXPECT_FALSE(rome().date({2024, 1, 1}, 0, 0, -1));
    EXPECT_THROW(Calendar("Nowhere/Atlantis"), std::invalid_argument);
    EXPECT_THROW(Calendar(""), std::invalid_argument);
}

TEST(Calendar, CopiesKeepTheirZoneAndCurrentFollowsTZ) {
    Calendar copy = rome();
    copy = Calendar("America/New_York");
    const Instant summerMidnight = at("2024-06-30T23:30:00Z");
    EXPECT_EQ(rome().civilDate(summerMidnight), (CivilDate{2024, 7, 1}));
    EXPECT_EQ(copy.civilDate(summerMidnight), (CivilDate{2024, 6, 30}));
    EXPECT_EQ(copy.timeZoneId(), "America/New_York");

    const char* saved = std::getenv("TZ");
    const std::string savedTZ = saved ? saved : "";
    setenv("TZ", ":Asia/Tokyo", 1);
    EXPECT_EQ(Calendar::current().timeZoneId(), "Asia/Tokyo");
    setenv("TZ", "Not/AZone", 1);
    EXPECT_FALSE(Calendar::current().timeZoneId().empty());
    saved ? setenv("TZ", savedTZ.c_str(), 1) : unsetenv("TZ");
}

}  // namespace
}  // namespace vantello
