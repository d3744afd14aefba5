#include "core/ledger/GoalError.hpp"

#include "core/base/Localization.hpp"

#include <string>

namespace vantello {

namespace {

std::string messageOf(GoalErrorCode code) {
    switch (code) {
        case GoalErrorCode::emptyName: return L10n::tr("Scrivi un nome per l'obiettivo.");
        case GoalErrorCode::targetNotPositive: return L10n::tr("La cifra da raggiungere deve essere maggiore di zero.");
        case GoalErrorCode::zeroContribution: return L10n::tr("Il versamento non può essere zero.");
        case GoalErrorCode::withdrawalTooLarge:
            return L10n::tr("Non puoi ritirare più di quanto hai messo da parte.");
        case GoalErrorCode::notFound: return L10n::tr("L'obiettivo non esiste più.");
    }
    return {};
}

}  // namespace

GoalError::GoalError(Code code) : CodedError(code, messageOf(code)) {}

}  // namespace vantello
