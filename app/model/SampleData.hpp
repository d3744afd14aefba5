#pragma once
// The ledger shown in the demo mode: about a year of believable movements of one person in
// Italy, ending on the given day: salary, rent, bills, groceries, fuel, restaurants, a few
// subscriptions, a monthly transfer to savings, a dinner shared with a friend, a savings goal, a
// car loan and the car itself. The same day always gives the same ledger, identifiers included.

#include "core/base/Calendar.hpp"
#include "core/ledger/Ledger.hpp"

namespace vantello {

[[nodiscard]] Ledger sampleLedger(Instant today, const Calendar& calendar);

}  // namespace vantello
