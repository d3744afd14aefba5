#include "core/statements/StatementDate.hpp"

#include "support/Dates.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantello {
namespace {

using Order = CSVImportOptions::DateOrder;
using testing::rome;
using testing::utc;

struct Reading {
    std::string cell;
    Order order;
    std::optional<CivilDate> expected;
};

void expectReadings(const std::vector<Reading>& readings) {
    for (const auto& [cell, order, expected] : readings) {
        const auto day = StatementDate::civilDate(cell, order);
        EXPECT_EQ(day, expected) << "«" << cell << "» under " << rawValue(order);
    }
}

constexpr CivilDate fifthOfMarch{2024, 3, 5};

TEST(StatementDate, ReadsEachOrderWithAnyOfItsSeparators) {
    expectReadings({
        {"05/03/24", Order::dayMonthYear, fifthOfMarch},
        {" 5.3.2024 ", Order::dayMonthYear, fifthOfMarch},
        {"2024-03-05", Order::yearMonthDay, fifthOfMarch},
        {"03/05/2024", Order::monthDayYear, fifthOfMarch},
        {"2024-03-05", Order::dayMonthYear, std::nullopt},
        {"29/02/2024", Order::dayMonthYear, CivilDate{2024, 2, 29}},
    });
}

TEST(StatementDate, RefusesWhatIsNotADayInRange) {
    for (const std::string cell : {"31/02/2024", "29/02/2023", "00/03/2024", "05/13/2024", "01/01/1899",
                                   "01/01/2201", "05/03", "05/03/2024/1", "05//03/2024", "5 3 2024",
                                   "/05/03/2024", "a/b/c", "05/03/2024 abc", "05/03/2024 25:00", ""}) {
        EXPECT_FALSE(StatementDate::civilDate(cell, Order::dayMonthYear)) << "«" << cell << "»";
    }
    expectReadings({{"01/01/1900", Order::dayMonthYear, CivilDate{1900, 1, 1}},
                    {"31/12/2200", Order::dayMonthYear, CivilDate{2200, 12, 31}}});
}

TEST(StatementDate, IgnoresATimeOfDayAfterTheDate) {
    expectReadings({
        {"05/03/2024 10:15", Order::dayMonthYear, fifthOfMarch},
        {"2024-03-05T10:15:00", Order::yearMonthDay, fifthOfMarch},
        {"2024-03-05T10:15:00.250+01:00", Order::yearMonthDay, fifthOfMarch},
        {"03/05/2024 8:05 PM", Order::monthDayYear, fifthOfMarch},
        {"28 feb 2024. 08:15:02", Order::dayMonthYear, CivilDate{2024, 2, 28}},
    });
}

TEST(StatementDate, EightDigitsAreYearMonthDayInAnyOrder) {
    expectReadings({{"20240305", Order::dayMonthYear, CivilDate{2024, 3, 5}},
                    {" 20240305 ", Order::monthDayYear, CivilDate{2024, 3, 5}},
                    {"20241305", Order::dayMonthYear, std::nullopt},
                    {"12345678", Order::yearMonthDay, std::nullopt},
                    {"2024030", Order::yearMonthDay, std::nullopt}});
}

TEST(StatementDate, MonthNameDecidesWhichPartIsTheMonth) {
    expectReadings({
        {"5 mar 2024", Order::monthDayYear, fifthOfMarch},
        {"5 Marzo 2024", Order::yearMonthDay, fifthOfMarch},
        {"05-MAR-24", Order::dayMonthYear, fifthOfMarch},
        {"Apr 8, 2018", Order::dayMonthYear, CivilDate{2018, 4, 8}},
        {"8 April 2018", Order::dayMonthYear, CivilDate{2018, 4, 8}},
        {"1 gen 2024", Order::dayMonthYear, CivilDate{2024, 1, 1}},
        {"2 giu 2024", Order::dayMonthYear, CivilDate{2024, 6, 2}},
        {"3 lug 2024", Order::dayMonthYear, CivilDate{2024, 7, 3}},
        {"4 AGÒSTO 2024", Order::dayMonthYear, CivilDate{2024, 8, 4}},
        {"5 sept 2024", Order::dayMonthYear, CivilDate{2024, 9, 5}},
        {"6 ott. 2024", Order::dayMonthYear, CivilDate{2024, 10, 6}},
        {"7 dic 2024", Order::dayMonthYear, CivilDate{2024, 12, 7}},
        {"2024 dec 7", Order::dayMonthYear, CivilDate{2024, 12, 7}},
        {"31 feb 2024", Order::dayMonthYear, std::nullopt},
        {"5 ma 2024", Order::dayMonthYear, std::nullopt},
        {"5 mars 2024", Order::dayMonthYear, std::nullopt},
        {"5 mar apr", Order::dayMonthYear, std::nullopt},
    });
}

TEST(StatementDate, DayIsReadAtNoonInTheCalendarsZone) {
    // Summer time starts that night: noon is 10:00 UTC, not 11:00.
    EXPECT_EQ(StatementDate::read("31/03/2024", Order::dayMonthYear, rome()), utc(2024, 3, 31, 10));
    EXPECT_EQ(StatementDate::read("05/03/2024", Order::dayMonthYear, rome()), utc(2024, 3, 5, 11));
    EXPECT_FALSE(StatementDate::read("31/04/2024", Order::dayMonthYear, rome()));
}

TEST(StatementDate, WrittenNumbersOnlyForDigitDates) {
    const auto numbers = StatementDate::writtenNumbers("2024-3-05 10:00");
    ASSERT_TRUE(numbers);
    EXPECT_EQ(numbers->values, (std::array<int, 3>{2024, 3, 5}));
    EXPECT_EQ(numbers->digitCounts, (std::array<int, 3>{4, 1, 2}));
    EXPECT_FALSE(StatementDate::writtenNumbers("5 mar 2024"));
}

}  // namespace
}  // namespace vantello
