#pragma once
// Reads the entries (Ntry) of an ISO 20022 cash-management message: the bank-to-customer
// statement (camt.053), account report (camt.052) and debit/credit notification (camt.054),
// streamed with expat, never held whole.

#include "core/base/Calendar.hpp"
#include "core/statements/CSVImportRow.hpp"

#include <string_view>
#include <vector>

namespace vantello {

// One row per Ntry, in file order, numbered by the line where it begins. Amt with its Ccy, and
// CdtDbtInd (CRDT an income, DBIT an expense); the day of BookgDt, else ValDt (Dt or DtTm, as
// written); only a booked entry (Sts "BOOK") becomes a movement, any other is a problem. The
// bank's id is AcctSvcrRef, else NtryRef, else the first transaction's references; with the
// account's IBAN (or other id) it names the movement. The note is the other party's name
// (the debtor of a credit, the creditor of a debit) and the unstructured remittance text, or
// AddtlNtryInf without them. A document that stops being well-formed XML ends with a problem
// row at the line where it breaks.
[[nodiscard]] std::vector<CSVImportRow> readCAMT(std::string_view text, const Calendar& calendar);

}  // namespace vantello
