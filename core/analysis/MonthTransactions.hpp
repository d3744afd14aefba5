#pragma once
// The movements of one calendar month: what the month's list shows and what a monthly export
// writes.

#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <vector>

namespace vantello {

// The movements dated within the calendar month (in `calendar`'s zone) that holds `dayInMonth`,
// in the ledger's order.
[[nodiscard]] std::vector<Transaction> monthTransactions(const Ledger& ledger, Instant dayInMonth,
                                                         const Calendar& calendar);

}  // namespace vantello
