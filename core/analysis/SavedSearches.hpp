#pragma once
// The searches the user keeps under a name in the ledger: saving, renaming, removing, and
// finding one by its name. Names are trimmed; an empty name is a SearchError and changes nothing.

#include "core/base/Uuid.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/SavedSearch.hpp"
#include "core/ledger/TransactionFilter.hpp"

#include <string_view>

namespace vantello {

// A new saved search with a fresh identifier, added after the others.
SavedSearch saveSearch(Ledger& ledger, std::string_view name, TransactionFilter filter);
// An unknown id is ignored, but the name is checked all the same.
void renameSavedSearch(Ledger& ledger, const Uuid& id, std::string_view name);
// An unknown id is ignored.
void removeSavedSearch(Ledger& ledger, const Uuid& id);

// The first saved search with that name, compared trimmed and ignoring case and accents.
[[nodiscard]] const SavedSearch* savedSearchNamed(const Ledger& ledger, std::string_view name);

}  // namespace vantello
