#include "app/model/SearchActions.hpp"

#include "app/model/DisplayText.hpp"
#include "core/analysis/SavedSearches.hpp"

#include <algorithm>

namespace vantello::app {

std::optional<QString> saveSearchAs(LedgerViewModel& model, const QString& name, const TransactionFilter& filter,
                                    std::optional<Uuid>* savedID) {
    std::optional<Uuid> made;
    auto error = model.apply(
        uiText("Salva ricerca"), [&](Ledger& ledger) { made = saveSearch(ledger, name.toStdString(), filter).id; },
        LedgerViewModel::ErrorRoute::caller);
    if (savedID) *savedID = error ? std::nullopt : made;
    return error;
}

std::optional<QString> renameSearch(LedgerViewModel& model, const Uuid& id, const QString& name) {
    return model.apply(
        uiText("Rinomina ricerca"), [&](Ledger& ledger) { renameSavedSearch(ledger, id, name.toStdString()); },
        LedgerViewModel::ErrorRoute::caller);
}

void deleteSearch(LedgerViewModel& model, const Uuid& id) {
    model.apply(uiText("Elimina ricerca"), [&](Ledger& ledger) { removeSavedSearch(ledger, id); });
}

const SavedSearch* savedSearch(const LedgerViewModel& model, const Uuid& id) {
    const auto& searches = model.ledger().data().savedSearches;
    const auto found = std::ranges::find(searches, id, &SavedSearch::id);
    return found == searches.end() ? nullptr : &*found;
}

}  // namespace vantello::app
