#pragma once
// The typed errors of acting on a detected subscription.

#include "core/base/UserError.hpp"

namespace vantello {

enum class SubscriptionErrorCode { notFound, alreadyRecurring };

class SubscriptionError : public CodedError<SubscriptionErrorCode> {
public:
    using Code = SubscriptionErrorCode;
    explicit SubscriptionError(Code code);
};

}  // namespace vantello
