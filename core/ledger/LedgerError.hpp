#pragma once
// The typed errors of the ledger's movements, categories and budgets, with their fixed
// (localised) messages.

#include "core/base/UserError.hpp"

#include <string_view>

namespace vantello {

enum class LedgerErrorCode {
    unknownCategory,
    amountNotPositive,
    categoryKindMismatch,
    duplicateID,
    notFound,
    budgetOnlyForExpenses,
};

class LedgerError : public CodedError<LedgerErrorCode> {
public:
    using Code = LedgerErrorCode;
    // `categoryID` is used by unknownCategory only.
    explicit LedgerError(Code code, std::string_view categoryID = {});
};

enum class CategoryErrorCode { emptyName, nameTooLong, duplicateName, notCustom };

class CategoryError : public CodedError<CategoryErrorCode> {
public:
    using Code = CategoryErrorCode;
    explicit CategoryError(Code code);
};

}  // namespace vantello
