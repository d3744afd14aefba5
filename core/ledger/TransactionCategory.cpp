#include "core/ledger/TransactionCategory.hpp"

#include "core/base/Localization.hpp"

#include <algorithm>

namespace vantello {

void to_json(Json& json, const TransactionCategory& category) {
    json = Json::object();
    json["id"] = category.id;
    json["name"] = category.name;
    json["symbol"] = category.symbol;
    json["kind"] = category.kind;
}

void from_json(const Json& json, TransactionCategory& category) {
    category.id = JsonCoding::required<std::string>(json, "id");
    category.name = JsonCoding::required<std::string>(json, "name");
    category.symbol = JsonCoding::required<std::string>(json, "symbol");
    category.kind = JsonCoding::required<TransactionKind>(json, "kind");
}

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
        localised("spesa", "Spesa alimentare", "cart", expense),
        localised("casa", "Casa", "house", expense),
        localised("bollette", "Bollette", "bolt", expense),
        localised("trasporti", "Trasporti", "car", expense),
        localised("ristoranti", "Ristoranti e bar", "fork.knife", expense),
        localised("svago", "Svago", "theatermasks", expense),
        localised("abbonamenti", "Abbonamenti", "repeat", expense),
        localised("salute", "Salute", "cross.case", expense),
        localised("abbigliamento", "Abbigliamento", "tshirt", expense),
        localised(otherExpensesCategoryID, "Altre uscite", "ellipsis.circle", expense),
        localised(salaryCategoryID, "Stipendio", "briefcase", income),
        localised(unemploymentBenefitCategoryID, "Indennità di disoccupazione",
                  "person.badge.clock", income),
        localised(otherIncomeCategoryID, "Altre entrate", "plus.circle", income),
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
        localised(transferCategoryID, "Giroconto", "arrow.left.arrow.right", TransactionKind::expense);
    return category;
}

}  // namespace vantello
