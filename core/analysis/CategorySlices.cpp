#include "core/analysis/CategorySlices.hpp"

#include <algorithm>

namespace vantello {

std::string CategorySlice::identity() const {
    if (const auto* category = std::get_if<TransactionCategory>(&content)) return category->id;
    return othersIdentity;
}

std::vector<CategorySlice> categorySlices(const std::vector<CategoryTotal>& breakdown, int maximumSlices) {
    const std::size_t maximum = static_cast<std::size_t>(std::max(maximumSlices, 1));
    const bool folds = breakdown.size() > maximum;
    const std::size_t kept = folds ? maximum - 1 : breakdown.size();

    std::vector<CategorySlice> slices;
    slices.reserve(kept + (folds ? 1 : 0));
    for (std::size_t index = 0; index < kept; ++index) {
        const CategoryTotal& entry = breakdown[index];
        slices.push_back(CategorySlice{entry.category, entry.total, entry.share});
    }
    if (folds) {
        CategorySlice others{CategorySlice::Others{static_cast<int>(breakdown.size() - kept)}, Decimal(), 0.0};
        for (std::size_t index = kept; index < breakdown.size(); ++index) {
            others.total += breakdown[index].total;
            others.share += breakdown[index].share;
        }
        slices.push_back(std::move(others));
    }
    return slices;
}

}  // namespace vantello
