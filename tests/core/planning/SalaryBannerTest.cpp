#include "core/planning/SalaryBanner.hpp"
#include "support/Dates.hpp"
#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using testing::at;
using testing::income;
using testing::rome;

const SalaryBannerSettings onThe27th{{true, 27, 9}, std::nullopt, std::nullopt};

std::optional<std::string> banner(const SalaryBannerSettings& settings, Instant now,
                                  const std::vector<Transaction>& movements = {},
                                  const std::vector<UnemploymentPeriod>& periods = {}) {
    return salaryBanner(settings, periods, SharedList<Transaction>(movements), now, rome());
}

TEST(SalaryBanner, FromTheReminderDayUntilTheSalaryIsRecorded) {
    EXPECT_EQ(banner(onThe27th, at(2026, 4, 27, 0)),
              "È passato il giorno dello stipendio (il 27): non l'hai ancora registrato questo mese.");
    EXPECT_TRUE(banner(onThe27th, at(2026, 4, 30)));
    EXPECT_FALSE(banner(onThe27th, at(2026, 4, 26, 23, 59)));
    EXPECT_FALSE(banner(onThe27th, at(2026, 4, 28), {income("1800", at(2026, 4, 2))}));
    EXPECT_FALSE(banner({{false, 27, 9}, std::nullopt, std::nullopt}, at(2026, 4, 28)));

    const UnemploymentPeriod withoutWork{Uuid::random(), at(2026, 4, 20), at(2026, 4, 28), ""};
    EXPECT_FALSE(banner(onThe27th, at(2026, 4, 28, 23), {}, {withoutWork}));
    EXPECT_TRUE(banner(onThe27th, at(2026, 4, 29, 0), {}, {withoutWork}));
}

TEST(SalaryBanner, DismissedOrPutOffUntilTheNextDay) {
    const Instant evening = at(2026, 4, 28, 22);
    for (const Instant day : {at(2026, 4, 28, 0), at(2026, 4, 29)}) {
        EXPECT_FALSE(banner({onThe27th.reminder, day, std::nullopt}, evening));
        EXPECT_FALSE(banner({onThe27th.reminder, std::nullopt, day}, evening));
    }
    const Instant yesterday = at(2026, 4, 27, 23, 59);
    EXPECT_TRUE(banner({onThe27th.reminder, yesterday, yesterday}, evening));
}

}  // namespace
}  // namespace vantello
