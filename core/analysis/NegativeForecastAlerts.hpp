#pragma once
// Warns when the month is heading for a negative balance, from the projected end-of-month
// balance of the month forecast.

#include "core/analysis/SmartAlert.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"

#include <vector>

namespace vantello {

// One alert when `projectedBalance` (the forecast of the month holding now) is below zero.
[[nodiscard]] std::vector<SmartAlert> negativeForecastAlerts(const Decimal& projectedBalance, Instant now,
                                                             const Calendar& calendar);

}  // namespace vantello
