#pragma once
// The donut of expenses by category: the largest categories, one slice each, and the rest
// folded into one "others" slice so that the chart never needs more colours than it has.

#include "core/analysis/CategoryBreakdown.hpp"

#include <string>
#include <variant>
#include <vector>

namespace vantello {

struct CategorySlice {
    // The folded remainder, with how many categories went into it.
    struct Others {
        int count = 0;
        bool operator==(const Others&) const = default;
    };
    using Content = std::variant<TransactionCategory, Others>;

    // The identity of the folded slice for list and chart diffing; no category id has this form.
    static constexpr const char* othersIdentity = "#altre";

    Content content;
    Decimal total;
    double share = 0;

    // The category's id, or othersIdentity.
    [[nodiscard]] std::string identity() const;

    bool operator==(const CategorySlice&) const = default;
};

// The slices for a sorted breakdown: every entry when there are at most `maximumSlices`, else the
// first maximumSlices − 1 and one others slice holding the sum of the rest (a maximum below 1
// counts as 1). The screens pass the palette's six colours.
[[nodiscard]] std::vector<CategorySlice> categorySlices(const std::vector<CategoryTotal>& breakdown,
                                                        int maximumSlices = 6);

}  // namespace vantello
