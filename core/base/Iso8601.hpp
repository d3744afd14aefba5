#pragma once
// ISO 8601 date-time text as the data files keep it: "2025-03-01T10:00:00Z".

#include "core/base/Instant.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace vantello::Iso8601 {

// Always UTC with a "Z" and whole seconds.
[[nodiscard]] std::string format(Instant moment);

// "YYYY-MM-DDTHH:MM:SS" followed by "Z" or an offset "+01:00" / "-0530"; fractional seconds
// are accepted and dropped. Nothing for anything else (including impossible dates).
[[nodiscard]] std::optional<Instant> parse(std::string_view text);

}  // namespace vantello::Iso8601
