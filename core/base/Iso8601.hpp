#pragma once
// ISO 8601 date-time text as the data files keep it: "2025-03-01T10:00:00Z", and the day
// alone as the exported files and the rate tables key it: "2025-03-01".

#include "core/base/Instant.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace vantello::Iso8601 {

// Always UTC with a "Z" and whole seconds. A moment outside the years 1...9999 is written
// as the nearest end of that range, so that the text can always be read back.
[[nodiscard]] std::string format(Instant moment);

// "YYYY-MM-DDTHH:MM:SS" followed by "Z" or an offset "+01:00" / "-0530"; fractional seconds
// are accepted and dropped. Years 0001...9999. Nothing for anything else (including
// impossible dates, out-of-range hours and trailing characters).
[[nodiscard]] std::optional<Instant> parse(std::string_view text);

// A calendar day alone: "2025-03-01". The parts are written as they are, without a check.
[[nodiscard]] std::string day(CivilDate date);
// A calendar month: "2025-03", the key of a month in identifiers and reports.
[[nodiscard]] std::string month(CivilDate date);

}  // namespace vantello::Iso8601
