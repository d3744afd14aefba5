#include "core/rates/ExchangeRates.hpp"

#include "core/base/CivilDays.hpp"
#include "core/base/Iso8601.hpp"
#include "core/rates/Currencies.hpp"

namespace vantello {

std::string ExchangeRates::dayKey(CivilDate day) { return Iso8601::day(day); }

bool ExchangeRates::hasNoRates() const {
    for (const auto& [day, rates] : days) {
        if (!rates.empty()) return false;
    }
    return true;
}

std::optional<DatedRate> ExchangeRates::lookUp(std::string_view code, Instant date,
                                               const Calendar& calendar) const {
    const CivilDate civil = calendar.civilDate(date);
    if (code == Currencies::ledger) return DatedRate{dayKey(civil), Decimal(1)};

    // Stepping through whole calendar days (not 24-hour spans) keeps clock changes out of it.
    const std::int64_t dayNumber = CivilDays::daysFromCivil(civil.year, civil.month, civil.day);
    for (int offset = 0; offset <= daysBack; ++offset) {
        const std::string key = dayKey(CivilDays::civilFromDays(dayNumber - offset));
        const auto day = days.find(key);
        if (day == days.end()) continue;
        const auto found = day->second.find(code);
        if (found != day->second.end()) return DatedRate{key, found->second};
    }
    return std::nullopt;
}

std::optional<Decimal> ExchangeRates::rate(std::string_view code, Instant date,
                                           const Calendar& calendar) const {
    auto found = lookUp(code, date, calendar);
    if (!found) return std::nullopt;
    return found->rate;
}

std::optional<Decimal> ExchangeRates::toEuro(const Decimal& amount, const Decimal& rate) {
    if (rate.sign() <= 0) return std::nullopt;
    auto quotient = amount.dividedBy(rate);
    if (!quotient) return std::nullopt;
    return quotient->rounded(2, RoundingMode::plain);
}

}  // namespace vantello
