#include "core/rates/RateError.hpp"

#include "core/base/Localization.hpp"

#include <utility>

namespace vantello {

namespace {

std::string messageOf(RateErrorCode code, long status) {
    switch (code) {
        case RateErrorCode::unreachable:
            return L10n::tr("Non è stato possibile scaricare i cambi della BCE.");
        case RateErrorCode::timedOut:
            return L10n::tr("Il server dei cambi della BCE non ha risposto in tempo.");
        case RateErrorCode::httpStatus:
            return L10n::tr("Il server dei cambi ha risposto con l'errore HTTP {status}.",
                            {{"status", std::to_string(status)}});
        case RateErrorCode::noRates:
            return L10n::tr("Il file dei cambi non contiene nessun cambio della BCE.");
    }
    return {};
}

}  // namespace

RateError::RateError(Code code, long status, std::string detail)
    : CodedError(code, messageOf(code, status)), status_(status), detail_(std::move(detail)) {}

std::string rateUnavailableMessage() {
    return L10n::tr("Cambio non disponibile: la BCE pubblica gli ultimi 90 giorni e serve internet. Scrivilo a mano.");
}

}  // namespace vantello
