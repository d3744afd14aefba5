#pragma once
// The loans of a ledger. Each operation throws WealthError and leaves the ledger as it was, or
// changes it. The link to the recurring rule that books the instalments is made by booking the
// loan (the planning layer); here it is only kept and, on deletion, followed.

#include "core/ledger/Ledger.hpp"

namespace vantello {

// WealthError invalidLoan unless principal > 0, months > 0 and annualRate >= 0.
void checkLoanTerms(const Loan& loan);

// Adds the loan, or replaces the one with the same id. The name is kept trimmed and must not be
// empty, then the terms are checked. The booked rule's id stays the stored loan's (none for a
// new loan), whatever the given loan carries.
void saveLoan(Ledger& ledger, Loan loan);
// Removes the loan and the recurring rule that books its instalments; the movements that rule
// already created stay. An unknown id is ignored.
void deleteLoan(Ledger& ledger, const Uuid& loanID);

}  // namespace vantello
