#pragma once
// What the user owns minus what they owe, at a moment and month by month: the account balances,
// the assets at their latest valuation and the capital still owed on loans.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Json.hpp"
#include "core/ledger/Ledger.hpp"

#include <vector>

namespace vantello {

struct NetWorth {
    Decimal accounts;  // the balances of the ledger's accounts
    Decimal assets;    // each asset's last valuation on or before the moment
    Decimal debts;     // the capital still owed on loans

    [[nodiscard]] Decimal total() const { return accounts + assets - debts; }
    bool operator==(const NetWorth&) const = default;
};

struct NetWorthPoint {
    Instant date;  // the moment the point describes
    NetWorth value;
    bool operator==(const NetWorthPoint&) const = default;
};

// Balances count the movements dated on or before `at`; an asset without a valuation by then
// counts nothing, a loan before its first payment its whole principal.
[[nodiscard]] NetWorth netWorth(const Ledger& ledger, Instant at, const Calendar& calendar);

// Oldest first: the last second of each of the `months` − 1 months before the one holding `now`,
// then `now` itself; just `now` for one month or fewer. The movements are walked once for all
// the points and each loan's plan is worked out once.
[[nodiscard]] std::vector<NetWorthPoint> netWorthHistory(const Ledger& ledger, int months, Instant now,
                                                         const Calendar& calendar);

void to_json(Json& json, const NetWorth& worth);
void to_json(Json& json, const NetWorthPoint& point);

}  // namespace vantello
