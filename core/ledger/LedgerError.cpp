#include "core/ledger/LedgerError.hpp"

#include "core/base/Localization.hpp"

#include <string>

namespace vantello {

namespace {

std::string ledgerMessage(LedgerErrorCode code, std::string_view categoryID) {
    switch (code) {
        case LedgerErrorCode::unknownCategory:
            // One pattern, so that a translation can place the id where its language wants it.
            return L10n::tr("La categoria «{id}» non esiste.", {{"id", categoryID}});
        case LedgerErrorCode::amountNotPositive: return L10n::tr("L'importo deve essere maggiore di zero.");
        case LedgerErrorCode::categoryKindMismatch:
            return L10n::tr("La categoria non corrisponde al tipo di movimento.");
        case LedgerErrorCode::duplicateID: return L10n::tr("Questo movimento esiste già.");
        case LedgerErrorCode::notFound: return L10n::tr("Il movimento non esiste più.");
        case LedgerErrorCode::budgetOnlyForExpenses:
            return L10n::tr("Il budget si imposta solo sulle categorie di uscita.");
    }
    return {};
}

std::string categoryMessage(CategoryErrorCode code) {
    switch (code) {
        case CategoryErrorCode::emptyName: return L10n::tr("Scrivi un nome per la categoria.");
        case CategoryErrorCode::nameTooLong:
            return L10n::tr("Il nome della categoria è troppo lungo (massimo 40 caratteri).");
        case CategoryErrorCode::duplicateName: return L10n::tr("Esiste già una categoria con questo nome.");
        case CategoryErrorCode::notCustom: return L10n::tr("Le categorie predefinite non si possono modificare.");
    }
    return {};
}

}  // namespace

LedgerError::LedgerError(Code code, std::string_view categoryID)
    : CodedError(code, ledgerMessage(code, categoryID)) {}

CategoryError::CategoryError(Code code) : CodedError(code, categoryMessage(code)) {}

}  // namespace vantello
