#pragma once
// What a movement is for: the built-in categories (fixed ids, localised names), the user's
// custom ones ("custom-" + UUID) and the separate transfer category "giroconto".

#include "core/base/Json.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace vantello {

struct TransactionCategory {
    std::string id;
    std::string name;    // display name; built-in names are localised
    std::string symbol;  // icon name, mapped to the icon theme by the screens
    TransactionKind kind = TransactionKind::expense;

    bool operator==(const TransactionCategory&) const = default;
};

void to_json(Json& json, const TransactionCategory& category);
void from_json(const Json& json, TransactionCategory& category);

// Where movements of a deleted custom category go, and the only categories rules re-file from.
inline constexpr std::string_view otherExpensesCategoryID = "altre-uscite";
inline constexpr std::string_view otherIncomeCategoryID = "altre-entrate";
// Used by the salary reminder and the work periods.
inline constexpr std::string_view salaryCategoryID = "stipendio";
inline constexpr std::string_view unemploymentBenefitCategoryID = "disoccupazione";
// Transfers between own accounts; never offered for ordinary movements, never budgeted.
inline constexpr std::string_view transferCategoryID = "giroconto";

// The fallback category of a kind: "altre-uscite" or "altre-entrate".
[[nodiscard]] std::string_view fallbackCategoryID(TransactionKind kind);

// The built-in categories in display order, named in the catalogue installed when first used.
[[nodiscard]] const std::vector<TransactionCategory>& builtInCategories();
// The built-in category with this id, or null (custom ids and "giroconto" are not built in).
[[nodiscard]] const TransactionCategory* builtInCategory(std::string_view id);
// The transfer category: "giroconto", "Giroconto", "arrow.left.arrow.right", expense.
[[nodiscard]] const TransactionCategory& transferCategory();

}  // namespace vantello
