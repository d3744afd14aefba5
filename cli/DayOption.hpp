#pragma once
// Days and months typed on the command line ("2025-03-01", "2025-03") and the "--today" option that fixes the moment
// taken as now, so that the same command gives the same answer on any day.

#include "cli/Arguments.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"

#include <optional>
#include <string_view>

namespace vantello::cli {

// 12:00 of the day written "AAAA-MM-GG" in `calendar`; ArgumentError naming `option` for
// anything else, an impossible day (2025-02-30) included.
[[nodiscard]] Instant noonOfDayOption(std::string_view option, std::string_view text, const Calendar& calendar);

// Day 1 of the month written "AAAA-MM" exactly (a month 1...12), or nothing.
[[nodiscard]] std::optional<CivilDate> monthOption(std::string_view text);

// Noon of the "--today" day when given, else the clock.
[[nodiscard]] Instant nowFromArguments(const Arguments& arguments, const Calendar& calendar);

}  // namespace vantello::cli
