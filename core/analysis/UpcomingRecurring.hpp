#pragma once
// The movements the recurring rules will still create in a stretch of time, worked out without
// touching the ledger: what the forecast and the projected balance count on.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <optional>
#include <string>
#include <vector>

namespace vantello {

struct RecurringOccurrence {
    Instant date;  // 12:00 of its day
    TransactionKind kind = TransactionKind::expense;
    Decimal amount;
    std::string accountID;
    std::optional<std::string> transferToAccountID;

    [[nodiscard]] bool isTransfer() const { return transferToAccountID.has_value(); }

    bool operator==(const RecurringOccurrence&) const = default;
};

// Every occurrence later than `after` and not later than `through` that the rules have not dealt
// with yet (later than their lastGenerated), sorted by date, rules in ledger order for equal
// dates. A salary rule skips the days without work, as generation does.
[[nodiscard]] std::vector<RecurringOccurrence> upcomingRecurring(const Ledger& ledger, Instant after,
                                                                 Instant through, const Calendar& calendar);

}  // namespace vantello
