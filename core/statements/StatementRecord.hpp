#pragma once
// One record of a statement that is not CSV (OFX, QIF, CAMT), as its reader found it, and the
// row it becomes: a movement, or the reason it cannot be imported.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/statements/CSVImportRow.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace vantello {

struct StatementRecord {
    int line = 0;        // 1-based line of the file where the record begins
    std::string bankID;  // the bank's own id of the movement; empty when the file gives none
    std::string dateText;
    std::optional<CivilDate> day;  // absent when `dateText` cannot be read
    std::string amountText;
    std::optional<Decimal> amount;  // signed, in `currency`: negative money leaves the account
    std::string currency;           // ISO code; empty when the statement does not say (euro)
    // The amount in a foreign currency that the bank converted into `amount`.
    std::optional<std::string> originalCurrency;
    std::optional<Decimal> originalAmount;
    std::string note;
    std::optional<std::string> problem;  // a reason found by the reader; it wins over the rest
};

// Where the records come from: the format and the account the statement names. With the
// bank's id they name the movement, so that the same record always gets the same identifier.
struct StatementSource {
    std::string_view format;
    std::string account;
};

// The row of a record, checked in this order: the reader's problem, the date, the amount (not
// zero), the currency (only euro is imported: a movement in another currency is a problem, never
// a euro amount). A movement is an expense for a negative amount and an income for a positive
// one, on noon of its day in `calendar`, in the fallback category of its kind, with its note's
// runs of white space made one space.
[[nodiscard]] CSVImportRow statementRow(const StatementRecord& record, const StatementSource& source,
                                        const Calendar& calendar);

// Reads a decimal amount written with a point or a comma and no grouping ("-12.50", "12,5").
[[nodiscard]] std::optional<Decimal> plainAmount(std::string_view text);

}  // namespace vantello
