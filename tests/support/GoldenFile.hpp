#pragma once
// Golden files: a result as a JSON document, compared with the one kept in tests/data. When they
// differ, or the golden file is missing, the result is left beside it as <case>.actual.json to
// review (or rename), and the failure shows the lines that differ in the pretty-printed documents.

#include "core/base/Json.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string_view>

namespace vantello::testing {

// EXPECT_TRUE(matchesGolden(result, "import", "preamble-signed")) compares with
// tests/data/import/preamble-signed.json.
[[nodiscard]] ::testing::AssertionResult matchesGolden(const Json& actual, std::string_view feature,
                                                       std::string_view caseName);
// The same against a golden file anywhere.
[[nodiscard]] ::testing::AssertionResult matchesGolden(const Json& actual, const std::filesystem::path& golden);

}  // namespace vantello::testing
