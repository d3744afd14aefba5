#include "app/model/SharedActions.hpp"

#include "app/model/DisplayText.hpp"
#include "core/ledger/LedgerSharing.hpp"

namespace vantello::app {

std::optional<QString> addPersonRecord(LedgerViewModel& model, std::string_view name) {
    return model.apply(uiText("Aggiungi persona"), [&](Ledger& ledger) { addPerson(ledger, name); },
                       LedgerViewModel::ErrorRoute::caller);
}

std::optional<QString> renamePersonRecord(LedgerViewModel& model, const Uuid& personID, std::string_view name) {
    return model.apply(uiText("Rinomina persona"), [&](Ledger& ledger) { renamePerson(ledger, personID, name); },
                       LedgerViewModel::ErrorRoute::caller);
}

void deletePersonRecord(LedgerViewModel& model, const Uuid& personID) {
    model.apply(uiText("Elimina persona"), [&](Ledger& ledger) { deletePerson(ledger, personID); });
}

std::optional<QString> addSettlement(LedgerViewModel& model, const SharedEntry& entry) {
    return model.apply(uiText("Salda"), [&](Ledger& ledger) { addSharedEntry(ledger, entry); },
                       LedgerViewModel::ErrorRoute::caller);
}

}  // namespace vantello::app
