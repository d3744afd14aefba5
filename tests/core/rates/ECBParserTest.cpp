#include "core/rates/ECBParser.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace vantello {
namespace {

std::string sampleFeed() {
    std::ifstream file(VANTELLO_TEST_DATA_DIR "/rates/eurofxref-sample.xml", std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string rateOf(const ExchangeRates& rates, const std::string& day, const std::string& code) {
    const auto found = rates.days.find(day);
    if (found == rates.days.end() || !found->second.contains(code)) return "nothing";
    return found->second.find(code)->second.description();
}

TEST(ECBParser, ReadsEveryDayOfTheBanksFeed) {
    const ExchangeRates rates = ECBParser::parse(sampleFeed());
    ASSERT_EQ(rates.days.size(), 9u);
    for (const auto& [day, byCurrency] : rates.days) EXPECT_EQ(byCurrency.size(), 5u) << day;
    EXPECT_EQ(rateOf(rates, "2024-01-05", "USD"), "1.0921");
    EXPECT_EQ(rateOf(rates, "2024-01-08", "USD"), "1.0946");
    EXPECT_EQ(rateOf(rates, "2024-01-08", "JPY"), "158.1");
    EXPECT_EQ(rateOf(rates, "2023-12-22", "GBP"), "0.86703");
}

TEST(ECBParser, ChunksSplitAnywhereReadTheSame) {
    const std::string feed = sampleFeed();
    ECBParser parser;
    for (char byte : feed) ASSERT_TRUE(parser.feed(std::string_view(&byte, 1)));
    EXPECT_EQ(parser.finish(), ECBParser::parse(feed));
}

TEST(ECBParser, SkipsRatesItCannotPlace) {
    const ExchangeRates rates = ECBParser::parse(R"(<e:Envelope xmlns:e="urn:e" xmlns:x="urn:x"><x:Cube>
        <Cube currency="USD" rate="1.1"/>
        <x:Cube time="2024-03-05">
          <Cube currency="USD" rate="1.0850"/><Cube currency="GBP" rate="1,17"/>
          <Cube currency="CHF" rate="n/a"/><Cube currency="JPY" rate=" 160"/><Cube currency="SEK"/>
        </x:Cube>
        <Cube time="2024-02-30"><Cube currency="NOK" rate="11.5"/></Cube>
        <Cube time="2024-03-04"><Cube currency="PLN" rate="4.3"/></Cube>
        </x:Cube></e:Envelope>)");
    EXPECT_EQ(rates.days.size(), 2u);
    EXPECT_EQ(rateOf(rates, "2024-03-05", "USD"), "1.085");
    EXPECT_EQ(rates.days.at("2024-03-05").size(), 1u);
    // A day that does not exist lends its rates to no other day.
    EXPECT_EQ(rateOf(rates, "2024-03-05", "NOK"), "nothing");
    EXPECT_EQ(rateOf(rates, "2024-03-04", "PLN"), "4.3");
}

TEST(ECBParser, MalformedFeedKeepsWhatCameBeforeTheFault) {
    const std::string feed = sampleFeed();
    const auto cut = feed.find("<Cube time=\"2024-01-03\">");
    const ExchangeRates truncated = ECBParser::parse(feed.substr(0, cut + 14));
    EXPECT_EQ(truncated.days.size(), 3u);
    EXPECT_EQ(rateOf(truncated, "2024-01-04", "SEK"), "11.1985");

    ECBParser parser;
    EXPECT_TRUE(parser.feed(feed.substr(0, cut)));
    EXPECT_FALSE(parser.feed("<Cube time=\"2024-01-03\"><Cube currency=USD"));
    EXPECT_FALSE(parser.feed(feed.substr(cut)));  // too late to recover
    EXPECT_TRUE(parser.failed());
    EXPECT_EQ(parser.finish().days.size(), 3u);

    EXPECT_TRUE(ECBParser::parse("Service Unavailable").hasNoRates());
    EXPECT_TRUE(ECBParser::parse("").hasNoRates());
}

}  // namespace
}  // namespace vantello
