#pragma once
// Income and expenses of a stretch of time, and the one rule of which movements count in every
// total: transfers between own accounts never do, and the full amount counts (shares owed by
// other people do not reduce it).

#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

namespace vantello {

struct PeriodTotals {
    Decimal income;
    Decimal expenses;  // positive

    [[nodiscard]] Decimal net() const { return income - expenses; }

    bool operator==(const PeriodTotals&) const = default;
};

// True for a movement that enters totals, breakdowns and budgets: anything but a transfer.
[[nodiscard]] inline bool countsInTotals(const Transaction& transaction) { return !transaction.isTransfer(); }

// Adds a counting movement to its side.
void addToTotals(PeriodTotals& totals, const Transaction& transaction);

// The movements dated in [start, end) that count, summed by side.
[[nodiscard]] PeriodTotals periodTotals(const Ledger& ledger, const DateInterval& interval);

}  // namespace vantello
