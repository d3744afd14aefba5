#pragma once
// The euro side of a movement typed in a foreign currency: the ECB reference rate of the
// movement's day (or the nearest earlier published day) as the editor's line, and the amount in
// euro it gives.

#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"
#include "core/rates/ExchangeRates.hpp"

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace vantello::app {

struct EditorConversion {
    // "1 EUR = 1,0832 USD · cambio BCE del 5 mar 2026", or why there is no rate.
    QString line;
    bool hasRate = false;
    // The euro amount as the amount field takes it ("923,19"); absent without a rate or while
    // the foreign amount does not read as more than zero.
    std::optional<std::string> euroAmountText;
};

// Nothing for euro: there is nothing to convert.
[[nodiscard]] std::optional<EditorConversion> conversionToEuro(const std::optional<ExchangeRates>& rates,
                                                               std::string_view currency,
                                                               std::string_view originalAmountText, Instant date,
                                                               const Calendar& calendar);

}  // namespace vantello::app
