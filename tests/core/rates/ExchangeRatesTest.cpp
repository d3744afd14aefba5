#include "core/rates/ExchangeRates.hpp"
#include "support/Dates.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

using testing::at;
using testing::rome;

Decimal number(const char* text) { return *Decimal::fromCanonical(text); }

class ExchangeRatesLookup : public ::testing::Test {
protected:
    std::string found(std::string_view code, CivilDate day, int hour = 12, int minute = 0) const {
        const auto result = rates.lookUp(code, at(day, hour, minute), rome());
        return result ? result->day + " " + result->rate.description() : "nothing";
    }

    // Published around Christmas: nothing from 23 December to 1 January but the 27th–29th.
    ExchangeRates rates{{
        {"2023-12-22", {{"USD", number("1.1023")}, {"JPY", number("157.14")}}},
        {"2023-12-27", {{"USD", number("1.1052")}}},
        {"2024-01-02", {{"USD", number("1.0956")}}},
        {"2024-01-05", {{"USD", number("1.0921")}}},
        {"2024-01-08", {{"USD", number("1.0946")}}},
    }};
};

TEST_F(ExchangeRatesLookup, WeekendFindsTheFridayBefore) {
    EXPECT_EQ(found("USD", {2024, 1, 6}), "2024-01-05 1.0921");
    EXPECT_EQ(found("USD", {2024, 1, 7}, 23, 59), "2024-01-05 1.0921");
    EXPECT_EQ(found("USD", {2024, 1, 8}), "2024-01-08 1.0946");
    // Half past midnight in Rome is still Sunday in UTC: the day is the user's, not UTC's.
    EXPECT_EQ(found("USD", {2024, 1, 8}, 0, 30), "2024-01-08 1.0946");
}

TEST_F(ExchangeRatesLookup, AfterALongHolidayTheLastPublishedDayWithinSevenDaysCounts) {
    EXPECT_EQ(found("USD", {2024, 1, 1}), "2023-12-27 1.1052");
    EXPECT_EQ(found("USD", {2024, 1, 3}), "2024-01-02 1.0956");
    EXPECT_EQ(found("JPY", {2023, 12, 29}), "2023-12-22 157.14");  // exactly seven days back
    EXPECT_EQ(found("JPY", {2023, 12, 30}), "nothing");             // eight is too far
    EXPECT_EQ(found("USD", {2024, 1, 16}), "nothing");              // beyond the feed's last day
    EXPECT_EQ(found("USD", {2023, 12, 21}), "nothing");             // before its first
    EXPECT_EQ(found("GBP", {2024, 1, 8}), "nothing");
}

TEST_F(ExchangeRatesLookup, EuroIsOneWithoutATable) {
    EXPECT_EQ(ExchangeRates{}.rate("EUR", at({2019, 5, 4}), rome()), Decimal(1));
    EXPECT_EQ(ExchangeRates{}.rate("USD", at({2019, 5, 4}), rome()), std::nullopt);
}

TEST(ExchangeRates, ToEuroDividesAndRoundsHalvesAwayFromZero) {
    EXPECT_EQ(ExchangeRates::toEuro(Decimal(100), number("1.0850")), number("92.17"));  // 92.1658…
    EXPECT_EQ(ExchangeRates::toEuro(number("1.005"), Decimal(1)), number("1.01"));
    EXPECT_EQ(ExchangeRates::toEuro(number("-1.005"), Decimal(1)), number("-1.01"));
    EXPECT_EQ(ExchangeRates::toEuro(Decimal(1000), number("158.10")), number("6.33"));
    EXPECT_EQ(ExchangeRates::toEuro(Decimal(100), Decimal(0)), std::nullopt);
    EXPECT_EQ(ExchangeRates::toEuro(Decimal(100), number("-1.1")), std::nullopt);
}

}  // namespace
}  // namespace vantello
