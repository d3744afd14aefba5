#include "core/ledger/AdvancedError.hpp"

#include "core/base/Localization.hpp"

#include <string>

namespace vantello {

namespace {

std::string messageOf(AdvancedErrorCode code) {
    switch (code) {
        case AdvancedErrorCode::emptyName: return L10n::tr("Scrivi un nome per il conto.");
        case AdvancedErrorCode::duplicateAccount: return L10n::tr("Esiste già un conto con questo nome.");
        case AdvancedErrorCode::mainAccount: return L10n::tr("Il conto principale non si può eliminare.");
        case AdvancedErrorCode::unknownAccount: return L10n::tr("Il conto non esiste.");
        case AdvancedErrorCode::emptyPattern: return L10n::tr("Scrivi il testo da cercare nella descrizione.");
        case AdvancedErrorCode::invalidRecurrence:
            return L10n::tr("La fine della ricorrenza deve venire dopo l'inizio.");
        case AdvancedErrorCode::transferToSameAccount: return L10n::tr("Un giroconto va tra due conti diversi.");
        case AdvancedErrorCode::transferWithoutDestination:
            return L10n::tr("Scegli il conto di destinazione del giroconto.");
        case AdvancedErrorCode::nameTooLong:
            return L10n::tr("Il nome del conto è troppo lungo (massimo 40 caratteri).");
    }
    return {};
}

}  // namespace

AdvancedError::AdvancedError(Code code) : CodedError(code, messageOf(code)) {}

}  // namespace vantello
