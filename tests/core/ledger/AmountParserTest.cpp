#include "core/ledger/AmountParser.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace vantello {
namespace {

struct Reading {
    std::string input;
    std::optional<std::string> expected;  // canonical text of the amount, or nothing
};

void expectReadings(const std::vector<Reading>& readings) {
    for (const auto& [input, expected] : readings) {
        const auto parsed = AmountParser::parse(input);
        if (expected) {
            ASSERT_TRUE(parsed.has_value()) << "«" << input << "»";
            EXPECT_EQ(parsed->description(), *expected) << "«" << input << "»";
        } else {
            EXPECT_FALSE(parsed.has_value()) << "«" << input << "» gave " << parsed->description();
        }
    }
}

TEST(AmountParser, ReadsItalianAndEnglishHabits) {
    expectReadings({
        {"1.250,00", "1250"},
        {"1,250.00", "1250"},
        {"1500,00", "1500"},
        {"12,50", "12.5"},
        {"12,5", "12.5"},
        {"12.000", "12000"},
        {"1.250.000", "1250000"},
        {"1 250,00 €", "1250"},
        {"€12", "12"},
        {",50", "0.5"},
        {"-300", std::nullopt},
        {"12,", std::nullopt},
        {"1,2345", std::nullopt},
        {"1.250.00", std::nullopt},
        {"12.34.567", std::nullopt},
        {"$12", std::nullopt},
        {"", std::nullopt},
        {" \t€ \n", std::nullopt},
    });
}

TEST(AmountParser, TailOfThreeMeansGrouping) {
    expectReadings({{"0,125", "125"}, {"1,250", "1250"}, {"1.234,567", "1234567"}, {",250", std::nullopt}});
}

TEST(AmountParser, DecimalSeparatorMayFollowTheOtherGrouping) {
    expectReadings({
        {"1,250.5", "1250.5"},
        {"1.250,5", "1250.5"},
        {"1,250,5", std::nullopt},
        {"1,250,50", std::nullopt},
        {"1.2.3,45", std::nullopt},
        {"1234.250,00", std::nullopt},
    });
}

TEST(AmountParser, SingleGroupHasNoLengthLimit) {
    expectReadings({{"0012", "12"}, {"1234567", "1234567"}, {".5", "0.5"}, {".", std::nullopt}, {"0", "0"},
                    {"0,00", "0"}, {"123456789012345678901234567890", "123456789012345678901234567890"}});
}

TEST(AmountParser, DropsEveryKindOfBlankAndTheEuroSign) {
    expectReadings({
        {"1\u00A0250,00", "1250"},       // no-break space
        {"1\u202F250,00", "1250"},       // narrow no-break space
        {"\u20AC\u2003 3,99\r\n", "3.99"},  // em space, CR LF
        {"1\u3000250", "1250"},          // ideographic space
    });
}

TEST(AmountParser, AcceptsOnlyPlainASCIIDigits) {
    expectReadings({
        {"\uFF11\uFF12", std::nullopt},        // full-width 12
        {"\u0661\u0662,\u0665\u0660", std::nullopt},  // Arabic-Indic 12,50
        {"12\u0301", std::nullopt},            // 2 with a combining acute is not a digit
        {"\u20AC\u0301 12", std::nullopt},     // nor is this the euro sign
        {"12'000", std::nullopt},
        {"+12", std::nullopt},
        {"12 EUR", std::nullopt},
    });
}

TEST(AmountParser, RefusesIllFormedUTF8) {
    expectReadings({
        {"12\xFF", std::nullopt},
        {"\xC2", std::nullopt},
        {std::string("1\0002", 3), std::nullopt},
        {"\xE2\x82", std::nullopt},
    });
}

}  // namespace
}  // namespace vantello
