#include "core/ledger/EmploymentError.hpp"

#include "core/base/Localization.hpp"

#include <string>

namespace vantello {

namespace {

std::string messageOf(EmploymentErrorCode code) {
    switch (code) {
        case EmploymentErrorCode::alreadyUnemployed: return L10n::tr("C'è già un periodo di disoccupazione in corso.");
        case EmploymentErrorCode::endBeforeStart: return L10n::tr("La fine del periodo deve venire dopo l'inizio.");
        case EmploymentErrorCode::overlapping:
            return L10n::tr("Il periodo si sovrappone a un altro periodo di disoccupazione.");
    }
    return {};
}

}  // namespace

EmploymentError::EmploymentError(Code code) : CodedError(code, messageOf(code)) {}

}  // namespace vantello
