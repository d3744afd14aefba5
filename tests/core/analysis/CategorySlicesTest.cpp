#include "core/analysis/CategorySlices.hpp"

#include "support/Movements.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using namespace testing;

// Totals 70, 60, 50, ... in that order, each a category of its own.
std::vector<CategoryTotal> breakdownOf(int count) {
    std::vector<CategoryTotal> totals;
    for (int index = 0; index < count; ++index) {
        const std::string id = "c" + std::to_string(index);
        totals.push_back(CategoryTotal{TransactionCategory{id, id, "tag", TransactionKind::expense},
                                       Decimal(70 - 10 * index), 0.1 + 0.01 * index});
    }
    return totals;
}

TEST(CategorySlices, SixCategoriesAreSixSlices) {
    const std::vector<CategorySlice> slices = categorySlices(breakdownOf(6));
    ASSERT_EQ(slices.size(), 6U);
    for (const CategorySlice& slice : slices) EXPECT_TRUE(std::holds_alternative<TransactionCategory>(slice.content));
    EXPECT_EQ(slices.back().identity(), "c5");
    EXPECT_EQ(slices.back().total, Decimal(20));
}

TEST(CategorySlices, SevenCategoriesFoldTheLastTwoIntoOthers) {
    const std::vector<CategorySlice> slices = categorySlices(breakdownOf(7));
    ASSERT_EQ(slices.size(), 6U);
    EXPECT_EQ(slices[4].identity(), "c4");
    EXPECT_EQ(slices[5].content, CategorySlice::Content(CategorySlice::Others{2}));
    EXPECT_EQ(slices[5].total, Decimal(30));  // 20 + 10
    EXPECT_DOUBLE_EQ(slices[5].share, 0.15 + 0.16);
    EXPECT_EQ(slices[5].identity(), CategorySlice::othersIdentity);
}

TEST(CategorySlices, ASmallerMaximumFoldsMore) {
    const std::vector<CategorySlice> slices = categorySlices(breakdownOf(4), 2);
    ASSERT_EQ(slices.size(), 2U);
    EXPECT_EQ(slices[1].content, CategorySlice::Content(CategorySlice::Others{3}));
    EXPECT_EQ(slices[1].total, Decimal(150));
    EXPECT_TRUE(categorySlices({}).empty());
}

}  // namespace
}  // namespace vantello
