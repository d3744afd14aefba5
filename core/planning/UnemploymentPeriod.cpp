#include "core/planning/UnemploymentPeriod.hpp"

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

void to_json(Json& json, const UnemploymentPeriod& period) {
    json = Json::object();
    json["id"] = period.id;
    json["start"] = period.start;
    JsonCoding::putIfPresent(json, "end", period.end);
    json["note"] = period.note;
}

void from_json(const Json& json, UnemploymentPeriod& period) {
    using namespace JsonCoding;
    period.id = required<Uuid>(json, "id");
    period.start = required<Instant>(json, "start");
    period.end = optional<Instant>(json, "end");
    period.note = valueOr<std::string>(json, "note", "");
}

}  // namespace vantello
