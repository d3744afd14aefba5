#pragma once
// The European Central Bank's reference rates by day, and the two questions the movement
// editor asks of them: which rate holds on a date, and what a foreign amount is in euro.
// A rate is how many units of a currency one euro buys (the feed's convention).

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vantello {

// A rate together with the published day it was taken from.
struct DatedRate {
    std::string day;  // day key, "2024-03-05"
    Decimal rate;
    bool operator==(const DatedRate&) const = default;
};

struct ExchangeRates {
    // How far back a lookup goes: weekends and the bank's holidays have no rates of their own.
    static constexpr int daysBack = 7;

    // Day key ("2024-03-05", see dayKey) → currency code → rate.
    std::map<std::string, std::map<std::string, Decimal, std::less<>>, std::less<>> days;

    bool operator==(const ExchangeRates&) const = default;

    // The day key of a calendar day: "2024-03-05".
    [[nodiscard]] static std::string dayKey(CivilDate day);

    // True when not a single rate was read.
    [[nodiscard]] bool hasNoRates() const;

    // The rate of `code` on the calendar day of `date`, or failing that on the nearest of the
    // seven days before it that has one. "EUR" is always 1 (dated with the day itself).
    [[nodiscard]] std::optional<DatedRate> lookUp(std::string_view code, Instant date,
                                                  const Calendar& calendar) const;
    [[nodiscard]] std::optional<Decimal> rate(std::string_view code, Instant date,
                                              const Calendar& calendar) const;

    // The euro value of a foreign amount, rounded plainly to cents; nothing for a rate that is
    // not greater than zero.
    [[nodiscard]] static std::optional<Decimal> toEuro(const Decimal& amount, const Decimal& rate);
};

}  // namespace vantello
