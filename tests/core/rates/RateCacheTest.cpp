#include "core/base/AtomicFile.hpp"
#include "core/base/Json.hpp"
#include "core/rates/RateCache.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

Decimal number(const char* text) { return *Decimal::fromCanonical(text); }

const ExchangeRates twoDays{{
    {"2024-01-04", {{"USD", number("1.0945")}, {"JPY", number("157.92")}}},
    {"2024-01-05", {{"USD", number("1.0921")}}},
}};

TEST(RateCacheCoding, KeepsEveryDayAndRateExactly) {
    const std::string text = RateCache::encode(twoDays);
    EXPECT_NE(text.find("\"1.0945\""), std::string::npos) << "rates are decimal text, never numbers";
    EXPECT_EQ(RateCache::decode(text), twoDays);
}

TEST(RateCacheCoding, RefusesWhatItDidNotWrite) {
    for (const char* text : {
             "{\"days\": {\"2024-01-05\": {\"USD\": \"1.09",  // cut short
             "{\"days\": []}",
             "{\"days\": {\"2024-01-05\": {\"USD\": 1.0921}}}",
             "{\"days\": {\"2024-01-05\": {\"USD\": \"circa uno\"}}}",
             "{\"days\": {\"2024-02-30\": {\"USD\": \"1.0921\"}}}",
             "{\"days\": {\"ultimo\": {\"USD\": \"1.0921\"}}}",
         }) {
        EXPECT_THROW((void)RateCache::decode(text), DecodingError) << text;
    }
}

using RateCacheFile = testing::TemporaryFolderTest;

TEST_F(RateCacheFile, WrittenRatesReadBackAndAnUnreadableCacheGivesNone) {
    const auto file = folder / "cambi.json";
    EXPECT_TRUE(RateCache::read(file).days.empty()) << "no cache yet";
    RateCache::write(file, twoDays);
    EXPECT_EQ(RateCache::read(file), twoDays);

    writeFileAtomically(file, "{\"days\": {\"2024-01-05\": ");
    EXPECT_TRUE(RateCache::read(file).days.empty());
    EXPECT_TRUE(RateCache::read(folder).days.empty()) << "a folder in the cache's place";
}

TEST(RateCacheMerge, TheFeedReplacesItsDaysAndOlderDaysStay) {
    const ExchangeRates feed{{
        {"2024-01-05", {{"USD", number("1.0922")}, {"GBP", number("0.8604")}}},
        {"2024-01-08", {{"USD", number("1.0946")}}},
    }};
    const ExchangeRates merged = RateCache::merged(twoDays, feed);
    EXPECT_EQ(merged.days.size(), 3u);
    EXPECT_EQ(merged.days.at("2024-01-04"), twoDays.days.at("2024-01-04"));
    EXPECT_EQ(merged.days.at("2024-01-05"), feed.days.at("2024-01-05"));
    EXPECT_EQ(RateCache::newestDay(merged), "2024-01-08");
}

TEST(RateCacheMerge, TheNewestDayIsTheNewestWithARate) {
    ExchangeRates rates = twoDays;
    rates.days["2024-01-06"];
    EXPECT_EQ(RateCache::newestDay(rates), "2024-01-05");
    EXPECT_EQ(RateCache::newestDay(ExchangeRates{}), std::nullopt);
}

}  // namespace
}  // namespace vantello
