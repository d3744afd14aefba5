#include "core/analysis/SavedSearches.hpp"

#include "core/analysis/SearchError.hpp"
#include "core/base/Text.hpp"

#include <algorithm>
#include <string>
#include <utility>

namespace vantello {

namespace {

std::string checkedName(std::string_view name) {
    std::string trimmed = Text::trimmed(name);
    if (trimmed.empty()) throw SearchError(SearchError::Code::emptyName);
    return trimmed;
}

}  // namespace

SavedSearch saveSearch(Ledger& ledger, std::string_view name, TransactionFilter filter) {
    SavedSearch search{Uuid::random(), checkedName(name), std::move(filter)};
    ledger.change([&](LedgerData& data) { data.savedSearches.push_back(search); });
    return search;
}

void renameSavedSearch(Ledger& ledger, const Uuid& id, std::string_view name) {
    std::string newName = checkedName(name);
    ledger.change([&](LedgerData& data) {
        for (SavedSearch& search : data.savedSearches) {
            if (search.id == id) search.name = newName;
        }
    });
}

void removeSavedSearch(Ledger& ledger, const Uuid& id) {
    ledger.change([&](LedgerData& data) {
        std::erase_if(data.savedSearches, [&id](const SavedSearch& search) { return search.id == id; });
    });
}

const SavedSearch* savedSearchNamed(const Ledger& ledger, std::string_view name) {
    const std::string_view wanted = Text::trimmedView(name);
    const auto& searches = ledger.data().savedSearches;
    const auto found = std::find_if(searches.begin(), searches.end(), [wanted](const SavedSearch& search) {
        return Text::equalIgnoringCaseAndAccents(Text::trimmedView(search.name), wanted);
    });
    return found == searches.end() ? nullptr : &*found;
}

}  // namespace vantello
