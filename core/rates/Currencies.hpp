#pragma once
// The foreign currencies the movement editor offers (ISO 4217 codes, in the order shown) and
// the currency the ledger keeps every amount in.

#include <array>
#include <string_view>

namespace vantello::Currencies {

inline constexpr std::string_view ledger = "EUR";

// The order is the editor's: the most used first, then Europe, Asia and the rest.
inline constexpr std::array<std::string_view, 30> offered = {
    "USD", "GBP", "CHF", "JPY", "CAD", "AUD", "NZD", "SEK", "NOK", "DKK",
    "PLN", "CZK", "HUF", "RON", "BGN", "ISK", "TRY", "CNY", "HKD", "SGD",
    "KRW", "INR", "IDR", "MYR", "PHP", "THB", "ILS", "MXN", "BRL", "ZAR",
};

// Whether the editor offers `code` (exact, upper-case match); the ledger currency is not offered.
[[nodiscard]] bool isOffered(std::string_view code);

}  // namespace vantello::Currencies
