#pragma once
// The typed errors of savings goals and their contributions.

#include "core/base/UserError.hpp"

namespace vantello {

enum class GoalErrorCode { emptyName, targetNotPositive, zeroContribution, withdrawalTooLarge, notFound };

class GoalError : public CodedError<GoalErrorCode> {
public:
    using Code = GoalErrorCode;
    explicit GoalError(Code code);
};

}  // namespace vantello
