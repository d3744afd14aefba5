#pragma once
// The day and the time of day a clock on the wall shows at a moment, in a calendar's zone:
// what dated names and records (backup folders, the Trash) are written with.

#include "core/base/Calendar.hpp"
#include "core/base/Instant.hpp"

namespace vantello {

struct WallClockTime {
    CivilDate day;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

[[nodiscard]] inline WallClockTime wallClockTime(Instant moment, const Calendar& calendar) {
    const long long local = unixSeconds(moment) + calendar.utcOffsetSeconds(moment);
    const auto secondOfDay = static_cast<int>(((local % 86400) + 86400) % 86400);
    return {calendar.civilDate(moment), secondOfDay / 3600, secondOfDay / 60 % 60, secondOfDay % 60};
}

}  // namespace vantello
