#include "core/ledger/SavedSearch.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

const auto savedSearchFields = std::tuple{
    JsonFields::required("id", &SavedSearch::id),
    JsonFields::required("name", &SavedSearch::name),
    JsonFields::required("filter", &SavedSearch::filter),
};

void to_json(Json& json, const SavedSearch& search) { JsonFields::write(json, search, savedSearchFields); }

void from_json(const Json& json, SavedSearch& search) { JsonFields::read(json, search, savedSearchFields); }

}  // namespace vantello
