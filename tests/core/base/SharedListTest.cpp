// Copies of a shared list stay independent whatever changes one of them, across chunk borders.

#include "core/base/SharedList.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <string>

using vantello::SharedList;

namespace {

SharedList<std::string> numbered(int count) {
    std::vector<std::string> values(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) values[static_cast<std::size_t>(i)] = std::to_string(i);
    return SharedList<std::string>(values);
}

std::vector<std::string> expectedAfter(int count, const std::function<void(std::vector<std::string>&)>& change) {
    std::vector<std::string> values = numbered(count).toVector();
    change(values);
    return values;
}

}  // namespace

TEST(SharedList, ChangesToACopyLeaveTheOriginalUntouched) {
    const int count = 1000;  // several chunks
    const SharedList<std::string> original = numbered(count);

    SharedList<std::string> appended = original;
    appended.push_back("new");
    SharedList<std::string> updated = original;
    updated.update(600, [](std::string& value) { value = "changed"; });
    SharedList<std::string> erased = original;
    erased.erase(255);
    erased.erase(0);
    SharedList<std::string> filtered = original;
    EXPECT_EQ(filtered.eraseIf([](const std::string& value) { return value.size() == 2; }), 90u);

    EXPECT_EQ(original, numbered(count));
    EXPECT_EQ(appended.toVector(), expectedAfter(count, [](auto& v) { v.push_back("new"); }));
    EXPECT_EQ(updated[600], "changed");
    EXPECT_EQ(erased.toVector(), expectedAfter(count, [](auto& v) { v.erase(v.begin() + 255); v.erase(v.begin()); }));
    EXPECT_EQ(erased[254], "256");
    EXPECT_EQ(filtered.size(), 910u);
    EXPECT_EQ(filtered[10], "100");
}

TEST(SharedList, EqualityIsByElementsWhateverTheChunkLayout) {
    SharedList<std::string> a = numbered(600);
    SharedList<std::string> b = a;
    EXPECT_EQ(a, b);
    b.update(300, [](std::string& value) { value = "x"; });
    EXPECT_FALSE(a == b);
    b.set(300, "300");
    EXPECT_EQ(a, b);  // equal again although the chunk is no longer shared

    SharedList<std::string> rebuilt;  // one element at a time: another layout after erasing
    rebuilt.push_back("extra");
    for (const auto& value : a) rebuilt.push_back(value);
    rebuilt.erase(0);
    EXPECT_EQ(rebuilt, a);
}

TEST(SharedList, IteratesAndSortsStablyAcrossChunks) {
    std::vector<std::pair<int, int>> values;
    for (int i = 0; i < 700; ++i) values.emplace_back(i % 3, i);
    SharedList<std::pair<int, int>> list(values);
    list.stableSort([](const auto& a, const auto& b) { return a.first < b.first; });
    std::stable_sort(values.begin(), values.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    EXPECT_EQ(list.toVector(), values);
    EXPECT_EQ(std::distance(list.begin(), list.end()), 700);
    EXPECT_EQ((list.begin() + 513)->second, values[513].second);
    EXPECT_EQ(list.back(), values.back());
}

TEST(SharedList, AppendingSharesChunksYetChangesStayApart) {
    SharedList<int> first;
    SharedList<int> second;
    std::vector<int> expected;
    for (int i = 0; i < 300; ++i) first.push_back(i), expected.push_back(i);  // a part-filled last chunk
    for (int i = 300; i < 900; ++i) second.push_back(i), expected.push_back(i);

    first.append(second);
    first.push_back(900);
    expected.push_back(900);
    first.update(450, [](int& value) { value = -1; });
    expected[450] = -1;

    EXPECT_EQ(first.toVector(), expected);
    EXPECT_EQ(first[299], 299);
    EXPECT_EQ(first[300], 300);
    // The chunk shared with `second` was copied before the change.
    std::vector<int> secondValues(600);
    std::iota(secondValues.begin(), secondValues.end(), 300);
    EXPECT_EQ(second.toVector(), secondValues);
}
