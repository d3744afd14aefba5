#pragma once
// The recurring rules of a ledger: keeping them valid and creating the movements that fall due.

#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

namespace vantello {

// Checks in order: the amount, the category (not for a transfer), the account, the end against
// the start, then a transfer's destination.
void validateRecurringRule(const Ledger& ledger, const RecurringRule& rule);
void addRecurringRule(Ledger& ledger, RecurringRule rule);
// Editing changes only the future: occurrences already dealt with stay dealt with.
void updateRecurringRule(Ledger& ledger, RecurringRule rule);
void deleteRecurringRule(Ledger& ledger, const Uuid& id);  // the movements it created stay

// Creates every occurrence due up to `now` (salary rules skip days without work) and returns how
// many movements were created.
int generateDueTransactions(Ledger& ledger, Instant now, const Calendar& calendar);

}  // namespace vantello
