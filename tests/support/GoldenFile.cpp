#include "support/GoldenFile.hpp"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace vantello::testing {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t contextLines = 3;
// Above this many cells the middle of a diff is shown as all removed, then all added.
constexpr std::size_t largestTable = 20'000'000;

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto end = text.find('\n');
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

struct Edit {
    char mark;  // ' ' kept, '-' only in the expected text, '+' only in the actual one
    std::string_view line;
};

// The shortest edit from `before` to `after`, through their longest common subsequence of lines.
std::vector<Edit> edits(const std::vector<std::string_view>& before, const std::vector<std::string_view>& after) {
    std::size_t prefix = 0;
    while (prefix < before.size() && prefix < after.size() && before[prefix] == after[prefix]) ++prefix;
    std::size_t suffix = 0;
    while (suffix < before.size() - prefix && suffix < after.size() - prefix &&
           before[before.size() - 1 - suffix] == after[after.size() - 1 - suffix]) {
        ++suffix;
    }
    const std::size_t rows = before.size() - prefix - suffix;
    const std::size_t columns = after.size() - prefix - suffix;

    std::vector<Edit> script;
    for (std::size_t i = 0; i < prefix; ++i) script.push_back({' ', before[i]});
    if ((rows + 1) * (columns + 1) > largestTable) {
        for (std::size_t i = 0; i < rows; ++i) script.push_back({'-', before[prefix + i]});
        for (std::size_t j = 0; j < columns; ++j) script.push_back({'+', after[prefix + j]});
    } else {
        // common[i][j]: the longest common subsequence of the middles from line i and line j on.
        std::vector<std::size_t> common((rows + 1) * (columns + 1), 0);
        const auto cell = [&](std::size_t i, std::size_t j) -> std::size_t& { return common[i * (columns + 1) + j]; };
        for (std::size_t i = rows; i-- > 0;) {
            for (std::size_t j = columns; j-- > 0;) {
                cell(i, j) = before[prefix + i] == after[prefix + j] ? cell(i + 1, j + 1) + 1
                                                                     : std::max(cell(i + 1, j), cell(i, j + 1));
            }
        }
        std::size_t i = 0;
        std::size_t j = 0;
        while (i < rows || j < columns) {
            if (i < rows && j < columns && before[prefix + i] == after[prefix + j]) {
                script.push_back({' ', before[prefix + i++]});
                ++j;
            } else if (i < rows && (j == columns || cell(i + 1, j) >= cell(i, j + 1))) {
                script.push_back({'-', before[prefix + i++]});  // removals before additions, as diff does
            } else {
                script.push_back({'+', after[prefix + j++]});
            }
        }
    }
    for (std::size_t i = before.size() - suffix; i < before.size(); ++i) script.push_back({' ', before[i]});
    return script;
}

// Unified-style hunks: each run of changes with up to three unchanged lines around it.
std::string lineDiff(std::string_view expected, std::string_view actual) {
    const std::vector<Edit> script = edits(linesOf(expected), linesOf(actual));
    std::string diff;
    std::size_t next = 0;
    while (true) {
        const auto firstChange = std::find_if(script.begin() + static_cast<std::ptrdiff_t>(next), script.end(),
                                              [](const Edit& edit) { return edit.mark != ' '; });
        if (firstChange == script.end()) break;
        const auto first = static_cast<std::size_t>(firstChange - script.begin());
        std::size_t last = first;
        for (std::size_t k = first + 1; k < script.size() && k - last <= 2 * contextLines + 1; ++k) {
            if (script[k].mark != ' ') last = k;
        }
        const std::size_t start = first > contextLines ? first - contextLines : 0;
        const std::size_t end = std::min(script.size(), last + contextLines + 1);

        std::size_t oldBefore = 0, newBefore = 0, oldCount = 0, newCount = 0;
        for (std::size_t k = 0; k < end; ++k) {
            (k < start ? oldBefore : oldCount) += script[k].mark != '+' ? 1 : 0;
            (k < start ? newBefore : newCount) += script[k].mark != '-' ? 1 : 0;
        }
        // An empty side names the line before it, as diff -u does.
        diff += "@@ -" + std::to_string(oldBefore + (oldCount > 0 ? 1 : 0)) + "," + std::to_string(oldCount) + " +" +
                std::to_string(newBefore + (newCount > 0 ? 1 : 0)) + "," + std::to_string(newCount) + " @@\n";
        for (std::size_t k = start; k < end; ++k) {
            diff += script[k].mark;
            diff += script[k].line;
            diff += '\n';
        }
        next = end;
    }
    return diff;
}

std::string contentsOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

}  // namespace

::testing::AssertionResult matchesGolden(const Json& actual, const fs::path& golden) {
    const fs::path written = fs::path(golden).replace_extension(".actual.json");
    std::error_code missing;
    if (!fs::exists(golden, missing)) {
        std::ofstream(written, std::ios::binary) << JsonCoding::pretty(actual);
        return ::testing::AssertionFailure() << "There is no golden file " << golden << ". The result is in "
                                             << written << ": review it and rename it.";
    }

    const std::string expectedText = contentsOf(golden);
    Json expected;
    try {
        expected = JsonCoding::parse(expectedText);
    } catch (const DecodingError& error) {
        std::ofstream(written, std::ios::binary) << JsonCoding::pretty(actual);
        return ::testing::AssertionFailure() << "The golden file " << golden << " is not JSON (" << error.message()
                                             << "). The result is in " << written << ".";
    }
    if (actual == expected) {
        std::error_code stale;
        fs::remove(written, stale);
        return ::testing::AssertionSuccess();
    }

    const std::string actualText = JsonCoding::pretty(actual);
    std::ofstream(written, std::ios::binary) << actualText;
    const std::string diff = lineDiff(JsonCoding::pretty(expected), actualText);
    return ::testing::AssertionFailure() << "The result differs from " << golden << "; it is in " << written
                                         << ".\n--- " << golden.filename().string() << "\n+++ "
                                         << written.filename().string() << "\n"
                                         << (diff.empty() ? "(the documents print the same)\n" : diff);
}

::testing::AssertionResult matchesGolden(const Json& actual, std::string_view feature, std::string_view caseName) {
    return matchesGolden(actual, fs::path(VANTELLO_TEST_DATA_DIR) / feature / (std::string(caseName) + ".json"));
}

}  // namespace vantello::testing
