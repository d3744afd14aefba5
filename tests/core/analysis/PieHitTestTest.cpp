#include "core/analysis/PieHitTest.hpp"

#include <gtest/gtest.h>

#include <numbers>

namespace vantello {
namespace {

constexpr double pi = std::numbers::pi;

TEST(PieHitTest, AnglesClockwiseFromTheTopWithBoundariesToTheNextSlice) {
    const std::vector<double> values{1, 1, 2};
    EXPECT_EQ(PieHitTest::index(0, values), 0U);
    EXPECT_EQ(PieHitTest::index(pi / 2, values), 1U);
    EXPECT_EQ(PieHitTest::index(-pi / 2, values), 2U);
    EXPECT_EQ(PieHitTest::index(2 * pi + 0.1, values), 0U);
    EXPECT_EQ(PieHitTest::index(1.9 * pi, values), 2U);
    EXPECT_EQ(PieHitTest::index(-2.1 * pi, values), 2U);
}

TEST(PieHitTest, NoHitWithoutAPositiveTotal) {
    EXPECT_EQ(PieHitTest::index(1, {0, 0, 0}), std::nullopt);
    EXPECT_EQ(PieHitTest::index(1, {}), std::nullopt);
}

}  // namespace
}  // namespace vantello
