#include "core/planning/SalaryReminder.hpp"
#include "core/planning/WorkStatus.hpp"
#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using testing::at;
using testing::income;
using testing::rome;

const SalaryReminder onThe27th{true, 27, 9};

std::optional<Instant> next(const SalaryReminder& reminder, const std::vector<UnemploymentPeriod>& periods,
                            const std::vector<Transaction>& movements, Instant now) {
    return nextSalaryReminder(reminder, periods, SharedList<Transaction>(movements), now, rome());
}

TEST(SalaryReminder, NextReminderDayAtTheHourThatIsNotPast) {
    EXPECT_EQ(next(onThe27th, {}, {}, at(2026, 4, 10)), at(2026, 4, 27, 9));
    EXPECT_EQ(next(onThe27th, {}, {}, at(2026, 4, 27, 9)), at(2026, 4, 27, 9));
    EXPECT_EQ(next(onThe27th, {}, {}, at(2026, 4, 27, 10)), at(2026, 5, 27, 9));
    // April has no 31st: the next date carrying it.
    EXPECT_EQ(next({true, 31, 8}, {}, {}, at(2026, 4, 10)), at(2026, 5, 31, 8));
    EXPECT_EQ(next(SalaryReminder{false, 27, 9}, {}, {}, at(2026, 4, 10)), std::nullopt);
}

TEST(SalaryReminder, SilentWhenRecordedOrWithoutWork) {
    EXPECT_EQ(next(onThe27th, {}, {income("1800", at(2026, 4, 1, 0))}, at(2026, 4, 10)), at(2026, 5, 27, 9));
    // A salary of last month does not count for this one.
    EXPECT_EQ(next(onThe27th, {}, {income("1800", at(2026, 3, 31, 23))}, at(2026, 4, 10)), at(2026, 4, 27, 9));

    const UnemploymentPeriod spring{Uuid::random(), at(2026, 4, 20, 0), at(2026, 5, 27, 0), ""};
    EXPECT_EQ(next(onThe27th, {spring}, {}, at(2026, 4, 10)), at(2026, 6, 27, 9));
    const UnemploymentPeriod ongoing{Uuid::random(), at(2026, 1, 1, 0), std::nullopt, ""};
    EXPECT_EQ(next(onThe27th, {ongoing}, {}, at(2026, 4, 10)), std::nullopt);
}

TEST(SalaryReminder, JsonKeysAndRangeChecks) {
    const Json json = onThe27th;
    EXPECT_EQ(json, Json::parse(R"({"isEnabled": true, "day": 27, "hour": 9})"));
    EXPECT_EQ(json.get<SalaryReminder>(), onThe27th);
    EXPECT_THROW((void)Json::parse(R"({"isEnabled": true, "day": 32, "hour": 9})").get<SalaryReminder>(),
                 DecodingError);
    EXPECT_THROW((void)Json::parse(R"({"isEnabled": true, "day": 5, "hour": 24})").get<SalaryReminder>(),
                 DecodingError);
}

TEST(WorkStatus, LatestSalaryAndTheMonthItFallsIn) {
    const SharedList<Transaction> transactions{income("50", at(2026, 4, 2), "altre-entrate"),
                                               income("1700", at(2026, 2, 27)), income("1800", at(2026, 3, 27)),
                                               income("1900", at(2026, 4, 3))};
    ASSERT_TRUE(lastSalary(transactions));
    EXPECT_EQ(lastSalary(transactions)->amount, testing::amount("1900"));
    EXPECT_TRUE(salaryRecordedInMonth(transactions, at(2026, 3, 1, 0), rome()));
    EXPECT_FALSE(salaryRecordedInMonth(transactions, at(2026, 1, 31, 23), rome()));
    EXPECT_FALSE(lastSalary(SharedList<Transaction>{}));
}

}  // namespace
}  // namespace vantello
