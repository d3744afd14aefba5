#pragma once
// The dates a search period stands for: a half-open interval in the user's calendar, or nothing
// when the period puts no condition on the date.

#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/ledger/TransactionFilter.hpp"

#include <optional>

namespace vantello {

// `all` gives nothing; `thisMonth` and `thisYear` the month and year holding now;
// `last12Months` the current month and the eleven before it; `custom` the days from
// `customStart` to `customEnd`, both included (an absent end is open).
[[nodiscard]] std::optional<DateInterval> periodInterval(const TransactionFilter& filter, Instant now,
                                                         const Calendar& calendar);

}  // namespace vantello
