#include "core/ledger/SharedError.hpp"

#include "core/base/Localization.hpp"

#include <string>

namespace vantello {

namespace {

std::string messageOf(SharedErrorCode code) {
    switch (code) {
        case SharedErrorCode::emptyName: return L10n::tr("Scrivi un nome.");
        case SharedErrorCode::duplicateName: return L10n::tr("C'è già una persona con questo nome.");
        case SharedErrorCode::sharesOnlyOnExpenses: return L10n::tr("Si possono dividere solo le uscite.");
        case SharedErrorCode::sharesTooLarge: return L10n::tr("Le quote degli altri non possono superare la spesa.");
        case SharedErrorCode::unknownPerson: return L10n::tr("La persona non esiste più.");
        case SharedErrorCode::amountNotPositive: return L10n::tr("L'importo deve essere maggiore di zero.");
    }
    return {};
}

}  // namespace

SharedError::SharedError(Code code) : CodedError(code, messageOf(code)) {}

}  // namespace vantello
