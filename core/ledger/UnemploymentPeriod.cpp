#include "core/ledger/UnemploymentPeriod.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

bool isUnemployed(const std::vector<UnemploymentPeriod>& periods, Instant moment, const Calendar& calendar) {
    // By calendar day: a period ending on 10 March covers the whole of that day, whatever time
    // of day its end was recorded at.
    const Instant day = calendar.startOfDay(moment);
    for (const auto& period : periods) {
        if (day < calendar.startOfDay(period.start)) continue;
        if (!period.end || day <= calendar.startOfDay(*period.end)) return true;
    }
    return false;
}

const auto unemploymentPeriodFields = std::tuple{
    JsonFields::required("id", &UnemploymentPeriod::id),
    JsonFields::required("start", &UnemploymentPeriod::start),
    JsonFields::optional("end", &UnemploymentPeriod::end),
    JsonFields::orDefault("note", &UnemploymentPeriod::note, std::string()),
};

void to_json(Json& json, const UnemploymentPeriod& period) { JsonFields::write(json, period, unemploymentPeriodFields); }

void from_json(const Json& json, UnemploymentPeriod& period) { JsonFields::read(json, period, unemploymentPeriodFields); }

}  // namespace vantello
