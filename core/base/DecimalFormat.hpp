#pragma once
// Plain amount text for people and other programs: exactly two fraction digits, no grouping,
// the locale's decimal separator ("1250,00" in Italian, "1250.00" in English).

#include "core/base/Decimal.hpp"

#include <string>
#include <string_view>

namespace vantello {

// The decimal separator of an ICU locale name ("it_IT", "en"); "." when ICU gives none.
[[nodiscard]] std::string decimalSeparator(std::string_view localeName);

// Rounded plainly to cents, written with `separator` in place of the point.
[[nodiscard]] std::string plainAmountText(const Decimal& amount, std::string_view separator);

}  // namespace vantello
