#pragma once
// The lowest balance the current month is heading for, and the day it is reached: the summary
// tile's "day of the lowest balance".

#include "core/analysis/MonthForecast.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/Ledger.hpp"

#include <optional>
#include <string>

namespace vantello {

struct LowestBalance {
    Decimal balance;  // the lowest end-of-day balance from today to the end of the month
    Instant day;      // the start of the first day that reaches it
    std::optional<std::string> accountID;  // the account; nothing for all accounts together

    bool operator==(const LowestBalance&) const = default;
};

// Starts from the balance the ledger computes now (one account, or the sum of every account when
// no id is given), adds today's recurring movements not yet created, and then for each remaining
// day of the month that day's recurring movements and an even share of the month forecast's
// estimated variable spending (the estimate of that account alone when an id is given). The
// shares are cumulative amounts rounded to cents, so they add up exactly to the estimate. For all
// accounts, transfers move nothing; for one account, a transfer out lowers it and one in raises
// it. The earliest day wins a tie; on the last day of the month it is today's balance.
[[nodiscard]] LowestBalance lowestBalance(const Ledger& ledger, Instant now, const Calendar& calendar,
                                          const std::optional<std::string>& accountID = std::nullopt);

// The same from the balance now and the month forecast (of that account alone when an id is
// given), for callers that have both already.
[[nodiscard]] LowestBalance lowestBalance(const Ledger& ledger, Instant now, const Calendar& calendar,
                                          const Decimal& balanceNow, const MonthForecast& forecast,
                                          const std::optional<std::string>& accountID);

// The balance now, one movement at a time: one account's, as the ledger computes it, or the sum
// of every account's, where transfers between them cancel out.
class BalanceTally {
public:
    BalanceTally(const Ledger& ledger, std::optional<std::string> accountID);
    void add(const Transaction& transaction);
    [[nodiscard]] const Decimal& total() const { return total_; }

private:
    std::optional<std::string> accountID_;
    Decimal total_;
};

}  // namespace vantello
