#pragma once
// The typed errors of accounts, recurring rules and category rules.

#include "core/base/UserError.hpp"

namespace vantello {

enum class AdvancedErrorCode {
    emptyName,
    duplicateAccount,
    mainAccount,
    unknownAccount,
    emptyPattern,
    invalidRecurrence,
    transferToSameAccount,
    transferWithoutDestination,
    nameTooLong,  // an account name over 40 characters
};

class AdvancedError : public CodedError<AdvancedErrorCode> {
public:
    using Code = AdvancedErrorCode;
    explicit AdvancedError(Code code);
};

}  // namespace vantello
