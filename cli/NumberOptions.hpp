#pragma once
// Numbers typed on the command line: amounts and rates the Italian way ("100.000", "3,5"), read
// by the core's AmountParser, and whole numbers.

#include "cli/Arguments.hpp"
#include "core/base/Decimal.hpp"

#include <optional>
#include <string_view>

namespace vantello::cli {

// The option's amount, nothing when the option is absent; ArgumentError naming the option and
// what it `expects` (already in the interface language) for text that is not an amount.
[[nodiscard]] std::optional<Decimal> amountOption(const Arguments& arguments, std::string_view option,
                                                  std::string_view expects);

// The option's whole number within minimum...maximum, nothing when the option is absent;
// ArgumentError for anything else.
[[nodiscard]] std::optional<int> integerOption(const Arguments& arguments, std::string_view option, int minimum,
                                               int maximum);

}  // namespace vantello::cli
