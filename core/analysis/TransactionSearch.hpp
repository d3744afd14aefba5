#pragma once
// Finds the movements of the whole ledger that meet every condition of a filter: period, kind,
// categories, amount bounds, attachments, account and free text.

#include "core/analysis/TransactionQuery.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"
#include "core/ledger/TransactionFilter.hpp"

#include <optional>
#include <vector>

namespace vantello {

// Whether one movement meets the filter; `period` is the filter's interval (periodInterval) and
// `query` its prepared text, both worked out once per search.
[[nodiscard]] bool matchesFilter(const Transaction& transaction, const TransactionFilter& filter,
                                 const std::optional<DateInterval>& period, const TransactionFilter::Query& query);

// The matching movements, newest first; movements of the same moment keep the ledger's order.
[[nodiscard]] std::vector<Transaction> searchTransactions(const Ledger& ledger, const TransactionFilter& filter,
                                                          Instant now, const Calendar& calendar);

}  // namespace vantello
