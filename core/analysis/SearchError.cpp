#include "core/analysis/SearchError.hpp"

#include "core/base/Localization.hpp"

#include <string>

namespace vantello {

namespace {

std::string searchMessage(SearchErrorCode code) {
    switch (code) {
        case SearchErrorCode::emptyName: return L10n::tr("Scrivi un nome per la ricerca.");
    }
    return {};
}

}  // namespace

SearchError::SearchError(Code code) : CodedError(code, searchMessage(code)) {}

}  // namespace vantello
