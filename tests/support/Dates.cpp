#include "support/Dates.hpp"

#include <stdexcept>
#include <string>

namespace vantello::testing {
namespace {

[[noreturn]] void noSuchTime(const char* zone, CivilDate day, int hour, int minute, int second) {
    throw std::invalid_argument("no such time in " + std::string(zone) + ": " + std::to_string(day.year) + "-" +
                                std::to_string(day.month) + "-" + std::to_string(day.day) + " " +
                                std::to_string(hour) + ":" + std::to_string(minute) + ":" + std::to_string(second));
}

}  // namespace

const Calendar& rome() {
    static const Calendar calendar("Europe/Rome");
    return calendar;
}

Instant at(CivilDate day, int hour, int minute, int second) {
    const auto moment = rome().date(day, hour, minute, second);
    if (!moment) noSuchTime("Europe/Rome", day, hour, minute, second);
    return *moment;
}

Instant at(int year, int month, int day, int hour, int minute, int second) {
    return at(CivilDate{year, month, day}, hour, minute, second);
}

Instant utc(int year, int month, int day, int hour, int minute, int second) {
    using namespace std::chrono;
    const year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                              std::chrono::day{static_cast<unsigned>(day)}};
    if (!date.ok() || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) {
        noSuchTime("UTC", {year, month, day}, hour, minute, second);
    }
    return sys_days{date} + hours{hour} + minutes{minute} + seconds{second};
}

}  // namespace vantello::testing
