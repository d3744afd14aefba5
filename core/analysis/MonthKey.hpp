#pragma once
// The month of a moment as identifiers carry it: "2025-03", in the user's calendar.

#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"

#include <string>

namespace vantello {

[[nodiscard]] std::string monthKey(Instant moment, const Calendar& calendar);

}  // namespace vantello
