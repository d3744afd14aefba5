#pragma once
// A period without work; salary rules create nothing while it lasts.

#include "core/base/Calendar.hpp"
#include "core/base/Json.hpp"
#include "core/base/Uuid.hpp"

#include <optional>
#include <string>
#include <vector>

namespace vantello {

struct UnemploymentPeriod {
    Uuid id;
    Instant start;               // first day without work
    std::optional<Instant> end;  // last day without work (inclusive); absent while in progress
    std::string note;
    bool operator==(const UnemploymentPeriod&) const = default;
};

// True when the day of `moment` lies, by calendar day and with both ends included, inside one
// of the periods.
[[nodiscard]] bool isUnemployed(const std::vector<UnemploymentPeriod>& periods, Instant moment,
                                const Calendar& calendar);

void to_json(Json& json, const UnemploymentPeriod& period);
void from_json(const Json& json, UnemploymentPeriod& period);

}  // namespace vantello
