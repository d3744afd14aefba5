#include "core/base/Text.hpp"

#include <gtest/gtest.h>

using namespace vantello;

TEST(Text, FoldingIgnoresCaseAndAccents) {
    EXPECT_EQ(Text::folded("SVAGÓ"), "svago");
    EXPECT_EQ(Text::folded("ÄÖÜ ß"), "aou ss");
    // Already decomposed input (e + combining grave) folds like the precomposed letter.
    EXPECT_EQ(Text::folded("Caffe\xCC\x80"), Text::folded("Caffè"));
    // Letters beyond Latin go through ICU: Greek capital with tonos, and a Cyrillic word.
    EXPECT_EQ(Text::folded("Ά ДОМ"), "α дом");
    EXPECT_TRUE(Text::equalIgnoringCaseAndAccents("Perché", "PERCHE"));
    EXPECT_TRUE(Text::equalIgnoringCaseAndAccents("Straße", "STRASSE"));
    EXPECT_FALSE(Text::equalIgnoringCaseAndAccents("Caffè", "Caffè latte"));
}

TEST(Text, ContainsIgnoresCaseAndAccentsOnBothSides) {
    EXPECT_TRUE(Text::containsIgnoringCaseAndAccents("Caffè al bar", "caffe"));
    EXPECT_TRUE(Text::containsIgnoringCaseAndAccents("caffe al bar", "CAFFÈ"));
    EXPECT_TRUE(Text::containsIgnoringCaseAndAccents("Spesa Esselunga", "esselUNGA"));
    EXPECT_TRUE(Text::containsIgnoringCaseAndAccents("Café 東京", "東京"));
    EXPECT_TRUE(Text::containsIgnoringCaseAndAccents("qualsiasi", ""));
    EXPECT_FALSE(Text::containsIgnoringCaseAndAccents("spesa", "spesone"));
    EXPECT_FALSE(Text::containsIgnoringCaseAndAccents("cafe", "東京"));
    // Consecutive calls with different needles must not reuse the previous needle.
    EXPECT_TRUE(Text::containsIgnoringCaseAndAccents("Affitto", "affitto"));
    EXPECT_FALSE(Text::containsIgnoringCaseAndAccents("Affitto", "bollette"));
}

TEST(Text, TrimmingRemovesUnicodeWhiteSpaceAtBothEndsOnly) {
    EXPECT_EQ(Text::trimmed("\xC2\xA0\xE2\x80\xAF Conto\xC2\xA0" "casa\r\n\t\xE3\x80\x80"), "Conto\xC2\xA0" "casa");
    EXPECT_EQ(Text::trimmed(" \n\xC2\xA0 "), "");
    EXPECT_EQ(Text::trimmed("già"), "già");
    EXPECT_TRUE(Text::isWhitespace(U'\u2028'));
    EXPECT_FALSE(Text::isWhitespace(U'\u200B'));  // zero-width space is not White_Space
}

TEST(Text, LowercasingIsFullUnicode) {
    EXPECT_EQ(Text::lowercased("ÀÈ ÉNNE"), "àè énne");
    EXPECT_EQ(Text::lowercased("ΟΔΟΣ"), "οδος");  // final sigma
}

TEST(Text, CharacterCountUsesGraphemeClusters) {
    EXPECT_EQ(Text::characterCount("abc"), 3U);
    EXPECT_EQ(Text::characterCount("a\r\nb"), 3U);
    EXPECT_EQ(Text::characterCount("👍🏽"), 1U);    // thumbs up with skin tone
    EXPECT_EQ(Text::characterCount("🇮🇹"), 1U);    // flag: two regional indicators
    EXPECT_EQ(Text::characterCount("Caffe\xCC\x80!"), 6U);
    EXPECT_EQ(Text::characterCount(""), 0U);
}

TEST(Text, InvalidUtf8ReadsAsReplacementCharacter) {
    const std::string broken = "Caf\xC3 \xFF\xFE\xE2\x82 x\xF0\x9F";
    EXPECT_EQ(Text::folded(broken), "caf\uFFFD \uFFFD\uFFFD\uFFFD x\uFFFD");
    EXPECT_EQ(Text::lowercased("A\xFF"), "a\uFFFD");
    EXPECT_EQ(Text::characterCount(broken), 11U);
    EXPECT_EQ(Text::trimmed(" \xFF "), "\xFF");
    EXPECT_FALSE(Text::containsIgnoringCaseAndAccents(broken, "caffe"));
}
