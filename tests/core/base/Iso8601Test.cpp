#include "core/base/Iso8601.hpp"

#include <gtest/gtest.h>

namespace vantello {
namespace {

TEST(Iso8601, FormatsUtcAndReadsItBack) {
    EXPECT_EQ(Iso8601::format(instantFromUnixSeconds(0)), "1970-01-01T00:00:00Z");
    EXPECT_EQ(Iso8601::format(instantFromUnixSeconds(-1)), "1969-12-31T23:59:59Z");
    for (const char* text : {"2024-02-29T23:59:59Z", "0001-01-01T00:00:00Z", "9999-12-31T23:59:59Z",
                             "1900-03-01T12:34:56Z"}) {
        const auto moment = Iso8601::parse(text);
        ASSERT_TRUE(moment) << text;
        EXPECT_EQ(Iso8601::format(*moment), text);
    }
    // Far-off moments are written at the edge of the readable years, never unreadably.
    EXPECT_EQ(Iso8601::format(instantFromUnixSeconds(1LL << 50)), "9999-12-31T23:59:59Z");
}

TEST(Iso8601, AppliesOffsetsAndDropsFractions) {
    const auto tenUtc = Iso8601::parse("2025-03-01T10:00:00Z");
    ASSERT_TRUE(tenUtc);
    EXPECT_EQ(Iso8601::parse("2025-03-01T11:00:00+01:00"), tenUtc);
    EXPECT_EQ(Iso8601::parse("2025-03-01T11:00:00+0100"), tenUtc);
    EXPECT_EQ(Iso8601::parse("2025-03-01T04:30:00-05:30"), tenUtc);
    EXPECT_EQ(Iso8601::parse("2025-03-01T10:00:00.999Z"), tenUtc);
    EXPECT_EQ(Iso8601::parse("2025-03-01T11:00:00.5+01:00"), tenUtc);
    EXPECT_EQ(Iso8601::format(*Iso8601::parse("2024-03-01T00:30:00+01:00")),
              "2024-02-29T23:30:00Z");
}

TEST(Iso8601, RefusesAnythingElse) {
    for (const char* text :
         {"", "2024-02-30T10:00:00Z", "2023-02-29T10:00:00Z", "2024-13-01T10:00:00Z",
          "2024-00-10T10:00:00Z", "0000-01-01T00:00:00Z", "2024-01-01T24:00:00Z",
          "2024-01-01T10:60:00Z", "2024-01-01T10:00:60Z", "2024-01-01T10:00:00",
          "2024-01-01T10:00:00Zjunk", "2024-01-01 10:00:00Z", "2024-01-01t10:00:00z",
          "2024-1-01T10:00:00Z", "+2024-01-01T10:00:00Z", "2024-01-01T10:00:00.Z",
          "2024-01-01T10:00:00+01", "2024-01-01T10:00:00+1:00", "2024-01-01T10:00:00+24:00",
          "2024-01-01T10:00:00+01:60", "2024-01-01T10:00Z", "2024-01-01",
          "２０２４-01-01T10:00:00Z"}) {
        EXPECT_FALSE(Iso8601::parse(text)) << text;
    }
}

}  // namespace
}  // namespace vantello
