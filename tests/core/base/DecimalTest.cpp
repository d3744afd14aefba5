#include "core/base/Decimal.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <unordered_set>
#include <vector>

using vantello::Decimal;
using vantello::RoundingMode;

namespace {

Decimal dec(const char* text) {
    const auto value = Decimal::fromCanonical(text);
    EXPECT_TRUE(value.has_value()) << text;
    return value.value_or(Decimal{});
}

constexpr std::int64_t int64Max = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t int64Min = std::numeric_limits<std::int64_t>::min();

}  // namespace

TEST(DecimalArithmetic, CentsSumExactly) {
    Decimal total;
    for (int i = 0; i < 100000; ++i) {
        total += Decimal(1, -2);
    }
    EXPECT_EQ(total, Decimal(1000));
    EXPECT_EQ(dec("0.1") + dec("0.2"), dec("0.3"));
    EXPECT_EQ((dec("0.3") - dec("0.1")).description(), "0.2");
    EXPECT_EQ((dec("12.5") * dec("-0.04")).description(), "-0.5");
}

TEST(DecimalArithmetic, Int64OverflowMovesToGmpAndBack) {
    const Decimal past = Decimal(int64Max) + 1;
    EXPECT_EQ(past.description(), "9223372036854775808");
    EXPECT_EQ(past - 1, Decimal(int64Max));
    EXPECT_EQ((past - 1).hash(), Decimal(int64Max).hash());
    EXPECT_EQ((Decimal(int64Min) - 1).description(), "-9223372036854775809");
    EXPECT_EQ((-Decimal(int64Min)).description(), "9223372036854775808");
    EXPECT_EQ(-(-Decimal(int64Min)), Decimal(int64Min));
    EXPECT_EQ((Decimal(999999999999999999) * Decimal(999999999999999999)).description(),
              "999999999999999998000000000000000001");
    // Aligning exponents alone can overflow.
    EXPECT_EQ((Decimal(int64Max) + Decimal(1, -5)).description(), "9223372036854775807.00001");
    EXPECT_LT(Decimal(1), Decimal(1, 400));
}

TEST(DecimalDivision, ThirtyEightDigitsLastRoundedPlainly) {
    EXPECT_EQ(Decimal(1).dividedBy(3)->description(), "0." + std::string(38, '3'));
    EXPECT_EQ(Decimal(2).dividedBy(3)->description(), "0." + std::string(37, '6') + "7");
    EXPECT_EQ(Decimal(-20).dividedBy(3)->description(), "-6." + std::string(36, '6') + "7");
    EXPECT_EQ(Decimal(10).dividedBy(4)->description(), "2.5");
    EXPECT_EQ(dec("1").dividedBy(dec("0.0003"))->description(), std::string(4, '3') + "." + std::string(34, '3'));
    EXPECT_EQ(dec("123456789012345678901234567890").dividedBy(dec("-0.5"))->description(),
              "-246913578024691357802469135780");
    EXPECT_FALSE(Decimal(1).dividedBy(Decimal{}).has_value());
    EXPECT_EQ(*Decimal{}.dividedBy(7), Decimal{});
}

TEST(DecimalRounding, EachModeAtAndAroundHalves) {
    struct Case {
        const char* value;
        int scale;
        const char* plain;
        const char* up;
        const char* down;
        const char* bankers;
    };
    const Case cases[] = {
        {"2.5", 0, "3", "3", "2", "2"},
        {"3.5", 0, "4", "4", "3", "4"},
        {"-2.5", 0, "-3", "-2", "-2", "-2"},
        {"-3.5", 0, "-4", "-3", "-3", "-4"},
        {"2.345", 2, "2.35", "2.35", "2.34", "2.34"},
        {"2.355", 2, "2.36", "2.36", "2.35", "2.36"},
        {"-2.345", 2, "-2.35", "-2.34", "-2.34", "-2.34"},
        {"2.341", 2, "2.34", "2.35", "2.34", "2.34"},
        {"-2.349", 2, "-2.35", "-2.34", "-2.34", "-2.35"},
        {"1250", -2, "1300", "1300", "1200", "1200"},
        {"0.004", -1, "0", "10", "0", "0"},
        {"-0.004", 2, "0", "0", "0", "0"},
        {"1.5", 5, "1.5", "1.5", "1.5", "1.5"},
        {"12345678901234567890123.5", 0, "12345678901234567890124", "12345678901234567890124",
         "12345678901234567890123", "12345678901234567890124"},
        {"-12345678901234567890122.5", 0, "-12345678901234567890123", "-12345678901234567890122",
         "-12345678901234567890122", "-12345678901234567890122"},
    };
    for (const auto& c : cases) {
        const Decimal value = dec(c.value);
        EXPECT_EQ(value.rounded(c.scale, RoundingMode::plain).description(), c.plain) << c.value;
        EXPECT_EQ(value.rounded(c.scale, RoundingMode::up).description(), c.up) << c.value;
        EXPECT_EQ(value.rounded(c.scale, RoundingMode::down).description(), c.down) << c.value;
        EXPECT_EQ(value.rounded(c.scale, RoundingMode::bankers).description(), c.bankers) << c.value;
    }
}

TEST(DecimalText, CanonicalRoundTripsAndNormalises) {
    const std::string longDigits = std::string(150, '9') + "." + std::string(149, '1') + "7";
    for (const std::string& text :
         std::vector<std::string>{"1250", "12.5", "-300", "0.05", "0", "-0.000001", longDigits, "-" + longDigits}) {
        EXPECT_EQ(dec(text.c_str()).description(), text);
    }
    EXPECT_EQ(dec("12.50").description(), "12.5");
    EXPECT_EQ(dec("-0").description(), "0");
    EXPECT_EQ(dec("-0.00").sign(), 0);
    EXPECT_EQ(dec("0012").description(), "12");
    EXPECT_EQ(dec(("1" + std::string(300, '0')).c_str()), Decimal(1, 300));
}

TEST(DecimalText, RefusesAnythingNotCanonical) {
    for (const char* text : {"", "-", "+1", "1e5", " 1", "1 ", "1,5", ".5", "5.", "--1", "1.2.3", "1.-2",
                             "\xd9\xa1", "\xef\xbc\x91", "0x10", "1.5\n"}) {
        EXPECT_FALSE(Decimal::fromCanonical(text).has_value()) << text;
    }
}

TEST(DecimalText, AmountsStayWithinThePrecisionOfMoney) {
    const std::string digits38(38, '9');
    for (const std::string& text : {digits38, "-0." + digits38, "00" + digits38 + "000", "1" + std::string(128, '0'),
                                    "0." + std::string(127, '0') + "1", "0." + std::string(100'000, '0')}) {
        EXPECT_EQ(Decimal::fromCanonicalAmount(text), Decimal::fromCanonical(text)) << text;
    }
    for (const std::string& text : {digits38 + "1", "1" + digits38 + ".5", "1" + std::string(129, '0'),
                                    "0." + std::string(128, '0') + "1", std::string(100'000, '7'), std::string("12,5")}) {
        EXPECT_FALSE(Decimal::fromCanonicalAmount(text).has_value()) << text.substr(0, 50);
    }
}

TEST(DecimalEquality, ByValueWhateverTheForm) {
    const Decimal viaGmp = (Decimal(int64Max) + dec("12.5")) - Decimal(int64Max);
    const Decimal viaLongText = dec("12.500000000000000000000000000000");
    std::unordered_set<Decimal> values{dec("12.50"), dec("12.5"), Decimal(1250, -2), viaGmp, viaLongText};
    EXPECT_EQ(values.size(), 1U);
    EXPECT_EQ(viaGmp, Decimal(125, -1));
    EXPECT_LT(dec("0.1"), dec("0.25"));
    EXPECT_LT(dec("-1"), dec("-0.5"));
    EXPECT_GT(dec("100000000000000000000000000000"), dec("99999999999999999999999999999.9"));
    EXPECT_LT(dec("-100000000000000000000000000000"), Decimal(int64Min));
}

TEST(DecimalText, FixedDigitsRoundPlainlyWithoutNegativeZero) {
    EXPECT_EQ(Decimal(1250).toFixed(2), "1250.00");
    EXPECT_EQ(dec("12.5").toFixed(2, ','), "12,50");
    EXPECT_EQ(dec("-0.004").toFixed(2), "0.00");
    EXPECT_EQ(dec("-1.005").toFixed(2), "-1.01");
    EXPECT_EQ(dec("0.05").toFixed(1), "0.1");
    EXPECT_EQ(dec("2.5").toFixed(0), "3");
    EXPECT_EQ(dec("12345678901234567890.125").toFixed(2, ','), "12345678901234567890,13");
}

TEST(DecimalDouble, ShortestRoundTripBothWays) {
    EXPECT_EQ(*Decimal::fromDouble(0.1), dec("0.1"));
    EXPECT_EQ(Decimal::fromDouble(1e22)->description(), "1" + std::string(22, '0'));
    EXPECT_EQ(Decimal::fromDouble(-1.5e-7)->description(), "-0.00000015");
    EXPECT_FALSE(Decimal::fromDouble(std::nan("")).has_value());
    EXPECT_FALSE(Decimal::fromDouble(-std::numeric_limits<double>::infinity()).has_value());
    EXPECT_EQ(dec("0.1").toDouble(), 0.1);
    EXPECT_EQ(Decimal(1).dividedBy(3)->toDouble(), 1.0 / 3.0);
    EXPECT_EQ(dec(("-1" + std::string(400, '0')).c_str()).toDouble(), -std::numeric_limits<double>::infinity());
}
