#pragma once
// The typed error of saved searches, with its fixed (localised) message.

#include "core/base/UserError.hpp"

namespace vantello {

enum class SearchErrorCode { emptyName };

class SearchError : public CodedError<SearchErrorCode> {
public:
    using Code = SearchErrorCode;
    explicit SearchError(Code code);
};

}  // namespace vantello
