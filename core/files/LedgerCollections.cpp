#include "core/files/LedgerCollections.hpp"

#include "core/base/Localization.hpp"

#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace vantello {

namespace {

template <auto member>
std::size_t countOf(const LedgerData& data) {
    return (data.*member).size();
}

// A list of records; an absent key is an empty list.
template <auto member>
void decodeList(const Json& document, std::string_view key, LedgerData& data) {
    using List = std::remove_cvref_t<decltype(data.*member)>;
    data.*member = JsonCoding::valueOr<List>(document, key, {});
}

// Lists keep their order and sets come out ascending, so the same data always gives the same text.
template <auto member>
void encodeAsIs(const LedgerData& data, std::string_view key, Json& document) {
    document[std::string(key)] = data.*member;
}

void decodeMovements(const Json& document, std::string_view key, LedgerData& data) {
    const auto found = document.find(key);
    if (found == document.end()) JsonCoding::fail(key, L10n::key("manca"));
    if (!found->is_array()) JsonCoding::fail(key, L10n::key("ha un valore del tipo sbagliato"));

    SharedList<Transaction> transactions;
    transactions.reserve(found->size());
    for (const Json& element : *found) transactions.push_back(JsonCoding::convert<Transaction>(element, key));
    data.transactions = std::move(transactions);
}

void encodeMovementsPlace(const LedgerData&, std::string_view key, Json& document) {
    document[std::string(key)] = Json::array();
}

// A budget whose text is not a number is dropped rather than failing the whole file: losing one
// budget is better than refusing the ledger.
void decodeBudgets(const Json& document, std::string_view key, LedgerData& data) {
    const auto texts = JsonCoding::valueOr<std::map<std::string, std::string>>(document, key, {});
    std::map<std::string, Decimal> budgets;
    for (const auto& [categoryID, text] : texts) {
        if (auto amount = Decimal::fromCanonicalAmount(text)) budgets.emplace_hint(budgets.end(), categoryID, *amount);
    }
    data.budgets = std::move(budgets);
}

void encodeBudgets(const LedgerData& data, std::string_view key, Json& document) {
    Json budgets = Json::object();
    for (const auto& [categoryID, amount] : data.budgets) budgets[categoryID] = amount.description();
    document[std::string(key)] = std::move(budgets);
}

// A set of identifiers, stored as an array.
template <std::set<std::string> LedgerData::*member>
void decodeIDSet(const Json& document, std::string_view key, LedgerData& data) {
    auto ids = JsonCoding::valueOr<std::vector<std::string>>(document, key, {});
    data.*member = {std::make_move_iterator(ids.begin()), std::make_move_iterator(ids.end())};
}

template <auto member>
constexpr LedgerCollection list(std::string_view key, std::string_view label) {
    return {key, label, &countOf<member>, &decodeList<member>, &encodeAsIs<member>};
}

template <std::set<std::string> LedgerData::*member>
constexpr LedgerCollection idSet(std::string_view key, std::string_view label) {
    return {key, label, &countOf<member>, &decodeIDSet<member>, &encodeAsIs<member>};
}

constexpr std::array<LedgerCollection, 15> collections{{
    {"transactions", L10n::key("Movimenti"), &countOf<&LedgerData::transactions>, &decodeMovements,
     &encodeMovementsPlace},
    list<&LedgerData::customCategories>("customCategories", L10n::key("Categorie personalizzate")),
    {"budgets", L10n::key("Budget"), &countOf<&LedgerData::budgets>, &decodeBudgets, &encodeBudgets},
    list<&LedgerData::accounts>("accounts", L10n::key("Conti")),
    list<&LedgerData::recurringRules>("recurringRules", L10n::key("Movimenti ricorrenti")),
    list<&LedgerData::categoryRules>("categoryRules", L10n::key("Regole di categoria")),
    list<&LedgerData::unemploymentPeriods>("unemploymentPeriods", L10n::key("Periodi senza lavoro")),
    list<&LedgerData::savedSearches>("savedSearches", L10n::key("Ricerche salvate")),
    list<&LedgerData::savingsGoals>("savingsGoals", L10n::key("Obiettivi di risparmio")),
    list<&LedgerData::loans>("loans", L10n::key("Prestiti")),
    list<&LedgerData::assets>("assets", L10n::key("Beni")),
    idSet<&LedgerData::ignoredSubscriptions>("ignoredSubscriptions", L10n::key("Abbonamenti ignorati")),
    idSet<&LedgerData::dismissedAlerts>("dismissedAlerts", L10n::key("Avvisi nascosti")),
    list<&LedgerData::people>("people", L10n::key("Persone")),
    list<&LedgerData::sharedEntries>("sharedEntries", L10n::key("Voci condivise")),
}};

}  // namespace

const std::array<LedgerCollection, 15>& ledgerCollections() { return collections; }

}  // namespace vantello
