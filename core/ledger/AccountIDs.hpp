#pragma once
// Fixed account identifiers. Other accounts are "conto-" + UUID.

#include <string_view>

namespace vantello {

// The account every ledger has ("Conto principale"); movements of files written before
// accounts existed belong to it.
inline constexpr std::string_view mainAccountID = "principale";

}  // namespace vantello
