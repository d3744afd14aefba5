#include "core/planning/SubscriptionError.hpp"

#include "core/base/Localization.hpp"

#include <string>

namespace vantello {

namespace {

std::string messageOf(SubscriptionErrorCode code) {
    switch (code) {
        case SubscriptionErrorCode::notFound: return L10n::tr("Questo abbonamento non è tra quelli trovati.");
        case SubscriptionErrorCode::alreadyRecurring: return L10n::tr("Questo abbonamento è già un movimento ricorrente.");
    }
    return {};
}

}  // namespace

SubscriptionError::SubscriptionError(Code code) : CodedError(code, messageOf(code)) {}

}  // namespace vantello
