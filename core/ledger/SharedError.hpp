#pragma once
// The typed errors of people, shares and shared entries.

#include "core/base/UserError.hpp"

namespace vantello {

enum class SharedErrorCode {
    emptyName,
    duplicateName,
    sharesOnlyOnExpenses,
    sharesTooLarge,
    unknownPerson,
    amountNotPositive,
};

class SharedError : public CodedError<SharedErrorCode> {
public:
    using Code = SharedErrorCode;
    explicit SharedError(Code code);
};

}  // namespace vantello
