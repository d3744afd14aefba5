#pragma once
// Reads an amount typed the Italian or the English way ("1.250,00", "1,250.00", "12,50",
// "12.000 €") into an exact decimal. Signs are never accepted: callers that need one apply it.

#include "core/base/Decimal.hpp"

#include <optional>
#include <string_view>

namespace vantello::AmountParser {

// The amount the text stands for, or nothing when it is not an amount. Zero is an amount.
// Pure and thread-safe; never throws (ill-formed UTF-8 gives nothing).
[[nodiscard]] std::optional<Decimal> parse(std::string_view text);

}  // namespace vantello::AmountParser
