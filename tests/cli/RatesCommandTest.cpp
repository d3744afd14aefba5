// "rates" answers from a saved feed (the download itself is covered by the core's tests).

#include "CliRunner.hpp"
#include "core/base/Json.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using namespace vantello;

vantello::testing::CliOutcome rates(std::vector<std::string> options) {
    std::vector<std::string> arguments{"rates"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return vantello::testing::runCli(arguments);
}

const std::string feed = VANTELLO_TEST_DATA_DIR "/rates/eurofxref-sample.xml";

TEST(RatesCommand, SaturdayUsesFridaysRateAndConvertsAnItalianAmount) {
    const auto result = rates({"--feed", feed, "--currency", "usd", "--date", "2024-01-06", "--amount", "1.250,50", "--json"});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(JsonCoding::parse(result.out), JsonCoding::parse(R"({"currency":"USD","date":"2024-01-06",
        "day":"2024-01-05","rate":"1.0921","amount":"1250.5","euro":"1145.04"})"));

    const auto text = rates({"--feed", feed, "--currency", "JPY", "--date", "2024-01-08"});
    EXPECT_EQ(text.status, 0);
    EXPECT_EQ(text.out, "Cambio JPY del 2024-01-08: 1 EUR = 158.1 JPY\n");
}

TEST(RatesCommand, NoRateOrNoFeedFailsWithStatusOne) {
    const auto tooLate = rates({"--feed", feed, "--currency", "USD", "--date", "2024-01-16"});
    EXPECT_EQ(tooLate.status, 1);
    EXPECT_EQ(tooLate.err, "Nessun cambio USD per il 2024-01-16 né nei 7 giorni precedenti.\n");
    EXPECT_EQ(rates({"--feed", feed + ".missing", "--currency", "USD", "--date", "2024-01-05"}).status, 1);
    const auto refused = rates({"--fetch", "--url", "http://127.0.0.1:1/", "--currency", "USD", "--date", "2024-01-05"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.starts_with("Non è stato possibile scaricare i cambi della BCE.")) << refused.err;
}

TEST(RatesCommand, BadRequestsExitWithUsage) {
    const std::vector<std::vector<std::string>> bad = {
        {"--currency", "USD", "--date", "2024-01-05"},
        {"--feed", feed, "--fetch", "--currency", "USD", "--date", "2024-01-05"},
        {"--feed", feed, "--url", "http://127.0.0.1:1/", "--currency", "USD", "--date", "2024-01-05"},
        {"--feed", feed, "--currency", "XYZ", "--date", "2024-01-05"},
        {"--feed", feed, "--currency", "USD", "--date", "2024-02-30"},
        {"--feed", feed, "--currency", "USD", "--date", "5/1/2024"},
        {"--feed", feed, "--currency", "USD", "--date", "2024-01-05", "--amount", "dieci"},
        {"--feed", feed, "--date", "2024-01-05"},
    };
    for (const auto& options : bad) {
        const auto result = rates(options);
        EXPECT_EQ(result.status, 2) << options[options.size() - 1];
        EXPECT_NE(result.err.find("Uso: vantello-cli rates"), std::string::npos);
    }
}

}  // namespace
