#include "core/ledger/WealthError.hpp"

#include "core/base/Localization.hpp"

#include <string>

namespace vantello {

namespace {

std::string messageOf(WealthErrorCode code) {
    switch (code) {
        case WealthErrorCode::emptyName: return L10n::tr("Scrivi un nome, per esempio Auto o Mutuo casa.");
        case WealthErrorCode::invalidLoan:
            return L10n::tr("Controlla capitale, tasso e numero di rate: devono essere maggiori di zero (il tasso "
                            "può essere zero).");
        case WealthErrorCode::negativeValue: return L10n::tr("Il valore non può essere negativo.");
    }
    return {};
}

}  // namespace

WealthError::WealthError(Code code) : CodedError(code, messageOf(code)) {}

}  // namespace vantello
