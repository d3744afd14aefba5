#include "core/base/PeopleFormat.hpp"

#include "support/Dates.hpp"

#include <gtest/gtest.h>

using namespace vantello;
using vantello::testing::at;
using vantello::testing::rome;

namespace {

// ICU separates the amount from "€" with a no-break space in Italian.
std::string withPlainSpaces(std::string text) {
    for (const std::string nbsp : {"\u00A0", "\u202F"}) {
        for (auto at = text.find(nbsp); at != std::string::npos; at = text.find(nbsp)) text.replace(at, nbsp.size(), " ");
    }
    return text;
}

}  // namespace

TEST(PeopleFormat, EuroAmountsInItalianAndEnglish) {
    EXPECT_EQ(withPlainSpaces(PeopleFormat::euro(*Decimal::fromCanonical("1234.5"), "it_IT")), "1.234,50 €");
    EXPECT_EQ(withPlainSpaces(PeopleFormat::euro(*Decimal::fromCanonical("-1234.5"), "it_IT")), "-1.234,50 €");
    EXPECT_EQ(PeopleFormat::euro(*Decimal::fromCanonical("1234.5"), "en_US"), "€1,234.50");
    EXPECT_EQ(PeopleFormat::euro(*Decimal::fromCanonical("-0.05"), "en_US"), "-€0.05");
    // The exact decimal reaches ICU, and a half cent rounds away from zero, not to even.
    EXPECT_EQ(PeopleFormat::euro(*Decimal::fromCanonical("12345678901234567.125"), "en_US"),
              "€12,345,678,901,234,567.13");
    EXPECT_EQ(PeopleFormat::euro(*Decimal::fromCanonical("-0.125"), "en_US"), "-€0.13");
}

TEST(PeopleFormat, ShortDateIsTheDayInTheCalendarsZone) {
    EXPECT_EQ(PeopleFormat::shortDate(at(2026, 3, 5), rome(), "it_IT"), "5 mar 2026");
    EXPECT_EQ(PeopleFormat::shortDate(at(2026, 3, 5), rome(), "en_US"), "Mar 5, 2026");
    // 00:30 in Rome is still the previous day in UTC.
    EXPECT_EQ(PeopleFormat::shortDate(at(2026, 3, 6, 0, 30), rome(), "it_IT"), "6 mar 2026");
    EXPECT_EQ(PeopleFormat::shortDate(at(2026, 3, 5, 23, 59), rome(), "it_IT"), "5 mar 2026");
}
