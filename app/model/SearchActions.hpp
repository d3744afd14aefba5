#pragma once
// The changes a user makes to the saved searches (from the search screen and from the sidebar),
// through the model's one door so that they are saved and can be undone.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/SavedSearch.hpp"
#include "core/ledger/TransactionFilter.hpp"

#include <QString>

#include <optional>

namespace vantello::app {

// Keeps the filter under the name; the core's reason (an empty name) comes back for the dialog,
// which stays open. Returns the new search's id when it was saved.
std::optional<QString> saveSearchAs(LedgerViewModel& model, const QString& name, const TransactionFilter& filter,
                                    std::optional<Uuid>* savedID = nullptr);
// Gives a saved search another name; the reason comes back for the dialog when it cannot.
std::optional<QString> renameSearch(LedgerViewModel& model, const Uuid& id, const QString& name);
// Removes the saved search (its movements are untouched); an unknown id changes nothing.
void deleteSearch(LedgerViewModel& model, const Uuid& id);

// The saved search with that id in the ledger shown, or nothing.
[[nodiscard]] const SavedSearch* savedSearch(const LedgerViewModel& model, const Uuid& id);

}  // namespace vantello::app
