#include "core/rates/RateCache.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Json.hpp"

namespace vantello::RateCache {

namespace {
using Days = decltype(ExchangeRates::days);
}  // namespace

std::string encode(const ExchangeRates& rates) {
    Json days = Json::object();
    for (const auto& [day, dayRates] : rates.days) {
        Json& entry = days[day] = Json::object();
        for (const auto& [code, rate] : dayRates) entry[code] = rate;
    }
    return JsonCoding::pretty(Json{{"days", std::move(days)}});
}

ExchangeRates decode(std::string_view text) {
    ExchangeRates rates{JsonCoding::required<Days>(JsonCoding::parse(text), "days")};
    // The newest key names the rates' day, so a key that is no real day must not pass.
    for (const auto& [day, dayRates] : rates.days) {
        if (day.size() != 10 || !Iso8601::parse(day + "T00:00:00Z")) {
            JsonCoding::fail(day, L10n::key("non è un giorno"));
        }
    }
    return rates;
}

ExchangeRates read(const std::filesystem::path& file) {
    try {
        return decode(readWholeFile(file));
    } catch (const UserError&) {
        return {};
    }
}

void write(const std::filesystem::path& file, const ExchangeRates& rates) {
    writeFileAtomically(file, encode(rates));
}

ExchangeRates merged(ExchangeRates kept, const ExchangeRates& downloaded) {
    for (const auto& [day, dayRates] : downloaded.days) kept.days.insert_or_assign(day, dayRates);
    return kept;
}

std::optional<std::string> newestDay(const ExchangeRates& rates) {
    for (auto day = rates.days.rbegin(); day != rates.days.rend(); ++day) {
        if (!day->second.empty()) return day->first;
    }
    return std::nullopt;
}

}  // namespace vantello::RateCache
