#include "core/analysis/DescriptionKey.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

TEST(DescriptionKey, KeepsAsciiWordsOfTwoLettersOrMore) {
    EXPECT_EQ(descriptionKey("BAR CENTRALE 12"), "bar centrale");
    EXPECT_EQ(descriptionKey("  Bar  centrale 7/03 "), "bar centrale");
    // Digits, punctuation and accented letters end a word; single letters are dropped.
    EXPECT_EQ(descriptionKey("POS*Caffè e Bar-12 A"), "pos caff bar");
    EXPECT_EQ(descriptionKey("è 1 !"), "");
}

}  // namespace
}  // namespace vantello
