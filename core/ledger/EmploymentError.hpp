#pragma once
// The typed errors of the periods without work.

#include "core/base/UserError.hpp"

namespace vantello {

enum class EmploymentErrorCode {
    alreadyUnemployed,  // a second period still in progress
    endBeforeStart,
    overlapping,  // shares time with another period
};

class EmploymentError : public CodedError<EmploymentErrorCode> {
public:
    using Code = EmploymentErrorCode;
    explicit EmploymentError(Code code);
};

}  // namespace vantello
