// A golden file compares as JSON; a difference shows only the changed lines and leaves the
// result beside the golden file for review.

#include "support/GoldenFile.hpp"

#include "core/base/AtomicFile.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

using namespace vantello;
using vantello::testing::matchesGolden;
namespace fs = std::filesystem;

class GoldenFile : public vantello::testing::TemporaryFolderTest {
protected:
    static Json letters() {
        Json list = Json::array();
        for (char letter = 'a'; letter <= 't'; ++letter) list.push_back(std::string(1, letter));
        return list;
    }
    fs::path golden() const { return folder / "case.json"; }
    fs::path written() const { return folder / "case.actual.json"; }
};

TEST_F(GoldenFile, DifferenceShowsTheChangedLinesAndLeavesTheResultBeside) {
    std::ofstream(golden()) << letters().dump();  // compared by content, not layout
    Json changed = letters();
    changed[6] = "G";
    const auto result = matchesGolden(changed, golden());
    EXPECT_FALSE(result);
    EXPECT_TRUE(std::string(result.message())
                    .ends_with("--- case.json\n+++ case.actual.json\n@@ -5,7 +5,7 @@\n   \"d\",\n   \"e\",\n"
                               "   \"f\",\n-  \"g\",\n+  \"G\",\n   \"h\",\n   \"i\",\n   \"j\",\n"))
        << result.message();
    EXPECT_EQ(JsonCoding::parse(readWholeFile(written())), changed);

    EXPECT_TRUE(matchesGolden(letters(), golden()));
    EXPECT_FALSE(fs::exists(written()));  // the stale result goes once the two agree
}

TEST_F(GoldenFile, MissingGoldenFileFailsAndLeavesTheResult) {
    EXPECT_FALSE(matchesGolden(letters(), golden()));
    EXPECT_EQ(JsonCoding::parse(readWholeFile(written())), letters());
}

}  // namespace
