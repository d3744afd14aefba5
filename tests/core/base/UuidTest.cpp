#include "core/base/Uuid.hpp"

#include <gtest/gtest.h>

#include <unordered_set>

using namespace vantello;

TEST(Uuid, TextRoundTripsInUpperCase) {
    const auto parsed = Uuid::parse("e621e1f8-c36c-495a-93fc-0c247a3e6e5f");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->text(), "E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
    EXPECT_EQ(Uuid::parse(parsed->text()), parsed);
    EXPECT_EQ(parsed->bytes()[0], 0xE6);
    EXPECT_EQ(parsed->bytes()[15], 0x5F);
    EXPECT_FALSE(parsed->isNil());
    EXPECT_TRUE(Uuid().isNil());
    EXPECT_EQ(Uuid().text(), "00000000-0000-0000-0000-000000000000");
}

TEST(Uuid, ParseRefusesAnythingButTheExactForm) {
    for (const char* text : {"", "E621E1F8C36C495A93FC0C247A3E6E5F", "{E621E1F8-C36C-495A-93FC-0C247A3E6E5F}",
                             "E621E1F8-C36C-495A-93FC-0C247A3E6E5", "E621E1F8-C36C-495A-93FC-0C247A3E6E5FA",
                             "E621E1F8-C36C-495A-93FC0-C247A3E6E5F", "G621E1F8-C36C-495A-93FC-0C247A3E6E5F",
                             " E621E1F8-C36C-495A-93FC-0C247A3E6E5", "E621E1F8-C36C-495A-93FC-0C247A3E6E5\xC3"}) {
        EXPECT_FALSE(Uuid::parse(text)) << text;
    }
}

TEST(Uuid, RandomIdsAreVersion4AndDistinct) {
    std::unordered_set<Uuid> seen;
    for (int index = 0; index < 1000; ++index) {
        const auto id = Uuid::random();
        EXPECT_EQ(id.bytes()[6] >> 4, 4);
        EXPECT_TRUE(seen.insert(id).second);
    }
}
