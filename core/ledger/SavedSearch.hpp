#pragma once
// A search the user keeps under a name.

#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/TransactionFilter.hpp"

#include <string>

namespace vantello {

struct SavedSearch {
    Uuid id;
    std::string name;
    TransactionFilter filter;
    bool operator==(const SavedSearch&) const = default;
};

void to_json(Json& json, const SavedSearch& search);
void from_json(const Json& json, SavedSearch& search);

}  // namespace vantello
