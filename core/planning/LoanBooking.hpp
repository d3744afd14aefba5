#pragma once
// Booking a loan's instalments: one monthly recurring expense rule from the first payment,
// ending after the last one, for the instalment on the loan's account and category. The loan
// keeps the rule's id, so booking again replaces that rule and deleting the loan removes it.

#include "core/base/Calendar.hpp"
#include "core/ledger/Ledger.hpp"

namespace vantello {

// Books the instalments of the loan with this id and returns the rule. A loan already booked
// has its rule replaced, keeping the rule's id and the occurrences already dealt with (as when a
// rule is edited); a loan whose rule is gone gets a new one. Throws LedgerError notFound for an
// unknown loan and the recurring rules' errors (unknown account or category, a category that is
// not an expense); the ledger then stays as it was.
RecurringRule bookLoanInstalments(Ledger& ledger, const Uuid& loanID, const Calendar& calendar);

}  // namespace vantello
