#include "core/ledger/TransactionCategory.hpp"

#include "core/base/JsonFields.hpp"
#include "core/base/Localization.hpp"

#include <algorithm>
#include <tuple>

namespace vantello {

const auto transactionCategoryFields = std::tuple{
    JsonFields::required("id", &TransactionCategory::id),
    JsonFields::required("name", &TransactionCategory::name),
    JsonFields::required("symbol", &TransactionCategory::symbol),
    JsonFields::required("kind", &TransactionCategory::kind),
};

void to_json(Json& json, const TransactionCategory& category) { JsonFields::write(json, category, transactionCategoryFields); }

void from_json(const Json& json, TransactionCategory& category) { JsonFields::read(json, category, transactionCategoryFields); }

std::string_view fallbackCategoryID(TransactionKind kind) {
    return kind == TransactionKind::income ? otherIncomeCategoryID : otherExpensesCategoryID;
}

namespace {

TransactionCategory localised(std::string_view id, std::string_view italianName,
                              std::string_view symbol, TransactionKind kind) {
    return {std::string(id), L10n::tr(italianName), std::string(symbol), kind};
}

}  // namespace

const std::vector<TransactionCategory>& builtInCategories() {
    using enum TransactionKind;
    // Names are looked up once, with whatever catalogue is installed at that moment.
    static const std::vector<TransactionCategory> categories{
        localised("spesa", L10n::key("Spesa alimentare"), "cart", expense),
        localised("casa", L10n::key("Casa"), "house", expense),
        localised("bollette", L10n::key("Bollette"), "bolt", expense),
        localised("trasporti", L10n::key("Trasporti"), "car", expense),
        localised("ristoranti", L10n::key("Ristoranti e bar"), "fork.knife", expense),
        localised("svago", L10n::key("Svago"), "theatermasks", expense),
        localised("abbonamenti", L10n::key("Abbonamenti"), "repeat", expense),
        localised("salute", L10n::key("Salute"), "cross.case", expense),
        localised("abbigliamento", L10n::key("Abbigliamento"), "tshirt", expense),
        localised(otherExpensesCategoryID, L10n::key("Altre uscite"), "ellipsis.circle", expense),
        localised(salaryCategoryID, L10n::key("Stipendio"), "briefcase", income),
        localised(unemploymentBenefitCategoryID, L10n::key("Indennità di disoccupazione"),
                  "person.badge.clock", income),
        localised(otherIncomeCategoryID, L10n::key("Altre entrate"), "plus.circle", income),
    };
    return categories;
}

const TransactionCategory* builtInCategory(std::string_view id) {
    const auto& categories = builtInCategories();
    const auto found = std::find_if(categories.begin(), categories.end(),
                                    [id](const TransactionCategory& category) { return category.id == id; });
    return found == categories.end() ? nullptr : &*found;
}

const TransactionCategory& transferCategory() {
    static const TransactionCategory category =
        localised(transferCategoryID, L10n::key("Giroconto"), "arrow.left.arrow.right", TransactionKind::expense);
    return category;
}

}  // namespace vantello
