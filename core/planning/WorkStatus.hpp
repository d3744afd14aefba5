#pragma once
// What the movements say about the salary, recognised by its built-in income category
// "stipendio": the latest one, and whether this month's has been recorded.

#include "core/base/Calendar.hpp"
#include "core/base/SharedList.hpp"
#include "core/ledger/Transaction.hpp"

#include <optional>

namespace vantello {

// The salary with the latest date; its amount prefills the next one.
[[nodiscard]] std::optional<Transaction> lastSalary(const SharedList<Transaction>& transactions);

// True when a salary is dated in the calendar month holding `day`.
[[nodiscard]] bool salaryRecordedInMonth(const SharedList<Transaction>& transactions, Instant day,
                                         const Calendar& calendar);

}  // namespace vantello
