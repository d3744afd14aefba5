#pragma once
// The typed errors of the wealth records: assets and loans.

#include "core/base/UserError.hpp"

namespace vantello {

enum class WealthErrorCode {
    emptyName,      // an asset or a loan without a name
    invalidLoan,    // principal or months not above zero, or a negative rate
    negativeValue,  // a valuation below zero
};

class WealthError : public CodedError<WealthErrorCode> {
public:
    using Code = WealthErrorCode;
    explicit WealthError(Code code);
};

}  // namespace vantello
