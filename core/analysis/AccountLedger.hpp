#pragma once
// The ledger as one account sees it: the "show one account" filter of the month screens.

#include "core/ledger/Ledger.hpp"

#include <string_view>

namespace vantello {

// The same ledger holding only the movements that leave or enter the account (transfers to or
// from it included); every other collection is kept as it is.
[[nodiscard]] Ledger ledgerOfAccount(const Ledger& ledger, std::string_view accountID);

}  // namespace vantello
