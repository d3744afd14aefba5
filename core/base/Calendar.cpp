#include "core/base/Calendar.hpp"

#include "core/base/CivilDays.hpp"
#include "core/base/ZoneRules.hpp"

#include <unicode/timezone.h>
#include <unicode/ucal.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <tuple>

namespace vantello {

namespace {

using CivilDays::secondsPerDay;

constexpr std::int64_t secondsPerHour = 3600;
constexpr std::int64_t secondsPerMinute = 60;
constexpr std::int64_t noonSeconds = 12 * secondsPerHour;

// A wall-clock reading split into its day number and the seconds since that day's midnight.
struct WallClock {
    std::int64_t day;
    std::int64_t second;
};

WallClock wallClockOf(const ZoneRules& rules, Instant moment) {
    const std::int64_t reading = rules.wallClock(unixSeconds(moment));
    const std::int64_t day = CivilDays::floorDivide(reading, secondsPerDay);
    return WallClock{day, reading - day * secondsPerDay};
}

Instant resolved(const ZoneRules& rules, std::int64_t day, std::int64_t second = 0) {
    return instantFromUnixSeconds(rules.resolve(day * secondsPerDay + second));
}

bool isDayInRange(std::int64_t day) {
    constexpr std::int64_t firstDay = CivilDays::daysFromCivil(CivilDays::firstYear, 1, 1);
    constexpr std::int64_t lastDay = CivilDays::daysFromCivil(CivilDays::lastYear, 12, 31);
    return day >= firstDay && day <= lastDay;
}

std::int64_t firstDayOfMonth(std::int64_t year, int month) {
    return CivilDays::daysFromCivil(year, month, 1);
}

std::int64_t firstDayOfNextMonth(std::int64_t year, int month) {
    return month == 12 ? firstDayOfMonth(year + 1, 1) : firstDayOfMonth(year, month + 1);
}

// A TZ value may name a zone as ":Europe/Rome" or by its zoneinfo file path.
std::string zoneNameFromTZ(std::string_view value) {
    if (!value.empty() && value.front() == ':') {
        value.remove_prefix(1);
    }
    constexpr std::string_view zoneinfo = "zoneinfo/";
    if (const auto at = value.rfind(zoneinfo); at != std::string_view::npos) {
        value.remove_prefix(at + zoneinfo.size());
    }
    return std::string(value);
}

}  // namespace

Calendar::Calendar(const std::string& timeZoneId)
    : rules_(ZoneRules::forZone(timeZoneId)), zoneId_(rules_->zoneId()) {}

Calendar Calendar::current() {
    if (const char* tz = std::getenv("TZ"); tz != nullptr && *tz != '\0') {
        try {
            return Calendar(zoneNameFromTZ(tz));
        } catch (const std::invalid_argument&) {
            // A POSIX rule string such as "CET-1CEST" names no zone: use the system's.
        }
    }
    const std::unique_ptr<icu::TimeZone> host(icu::TimeZone::createDefault());
    if (host) {
        icu::UnicodeString name;
        host->getID(name);
        std::string zoneId;
        name.toUTF8String(zoneId);
        if (name != icu::UnicodeString(UCAL_UNKNOWN_ZONE_ID)) {
            try {
                return Calendar(zoneId);
            } catch (const std::invalid_argument&) {
            }
        }
    }
    return Calendar("UTC");
}

Calendar::Calendar(const Calendar& other) = default;
Calendar& Calendar::operator=(const Calendar& other) = default;
Calendar::Calendar(Calendar&&) noexcept = default;
Calendar& Calendar::operator=(Calendar&&) noexcept = default;
Calendar::~Calendar() = default;

CivilDate Calendar::civilDate(Instant moment) const {
    return CivilDays::civilFromDays(wallClockOf(*rules_, moment).day);
}

int Calendar::utcOffsetSeconds(Instant moment) const {
    return rules_->offsetAt(unixSeconds(moment));
}

Instant Calendar::startOfDay(Instant moment) const {
    return resolved(*rules_, wallClockOf(*rules_, moment).day);
}

DateInterval Calendar::dayInterval(Instant moment) const {
    const std::int64_t day = wallClockOf(*rules_, moment).day;
    return DateInterval{resolved(*rules_, day), resolved(*rules_, day + 1)};
}

DateInterval Calendar::monthInterval(Instant moment) const {
    const CivilDate date = civilDate(moment);
    return DateInterval{resolved(*rules_, firstDayOfMonth(date.year, date.month)),
                        resolved(*rules_, firstDayOfNextMonth(date.year, date.month))};
}

DateInterval Calendar::yearInterval(Instant moment) const {
    const CivilDate date = civilDate(moment);
    return DateInterval{resolved(*rules_, firstDayOfMonth(date.year, 1)),
                        resolved(*rules_, firstDayOfMonth(std::int64_t{date.year} + 1, 1))};
}

std::optional<Instant> Calendar::date(CivilDate day, int hour, int minute, int second) const {
    if (!CivilDays::isValidDate(day.year, day.month, day.day) || hour < 0 || hour > 23 ||
        minute < 0 || minute > 59 || second < 0 || second > 59) {
        return std::nullopt;
    }
    return resolved(*rules_, CivilDays::daysFromCivil(day.year, day.month, day.day),
                    hour * secondsPerHour + minute * secondsPerMinute + second);
}

Instant Calendar::noon(Instant moment) const {
    return resolved(*rules_, wallClockOf(*rules_, moment).day, noonSeconds);
}

std::optional<Instant> Calendar::adding(CalendarUnit unit, int count, Instant moment) const {
    if (count == 0) {
        return moment;  // even inside a repeated hour, where re-resolving would pick the first
    }
    const WallClock clock = wallClockOf(*rules_, moment);
    std::int64_t day = clock.day;
    switch (unit) {
    case CalendarUnit::day:
        day += count;
        break;
    case CalendarUnit::weekOfYear:
        day += std::int64_t{7} * count;
        break;
    case CalendarUnit::month:
    case CalendarUnit::year: {
        const CivilDate date = CivilDays::civilFromDays(day);
        const std::int64_t months = unit == CalendarUnit::month ? count : std::int64_t{12} * count;
        const std::int64_t monthIndex = std::int64_t{date.year} * 12 + (date.month - 1) + months;
        const std::int64_t year = CivilDays::floorDivide(monthIndex, 12);
        if (year < CivilDays::firstYear || year > CivilDays::lastYear) {
            return std::nullopt;
        }
        const int month = static_cast<int>(monthIndex - year * 12) + 1;
        day = CivilDays::daysFromCivil(year, month,
                                       std::min(date.day, CivilDays::daysInMonth(year, month)));
        break;
    }
    }
    if (!isDayInRange(day)) {
        return std::nullopt;
    }
    return resolved(*rules_, day, clock.second);
}

std::optional<Instant> Calendar::nextDayWithDayOfMonth(Instant moment, int dayOfMonth) const {
    if (dayOfMonth < 1 || dayOfMonth > 31) {
        return std::nullopt;
    }
    const CivilDate date = civilDate(moment);
    std::int64_t year = date.year;
    int month = date.month;
    if (date.day > dayOfMonth) {
        std::tie(year, month) = month == 12 ? std::pair{year + 1, 1} : std::pair{year, month + 1};
    }
    // Two consecutive months never both lack a day, so the second try always succeeds.
    for (int tries = 0; tries < 2; ++tries) {
        if (dayOfMonth <= CivilDays::daysInMonth(year, month)) {
            const std::int64_t day = CivilDays::daysFromCivil(year, month, dayOfMonth);
            if (!isDayInRange(day)) {
                return std::nullopt;
            }
            return resolved(*rules_, day);
        }
        std::tie(year, month) = month == 12 ? std::pair{year + 1, 1} : std::pair{year, month + 1};
    }
    return std::nullopt;
}

int Calendar::wholeDaysBetween(Instant from, Instant to) const {
    return static_cast<int>(wallClockOf(*rules_, to).day - wallClockOf(*rules_, from).day);
}

int Calendar::wholeMonthsBetween(Instant from, Instant to) const {
    const WallClock start = wallClockOf(*rules_, from);
    const WallClock end = wallClockOf(*rules_, to);
    const CivilDate startDate = CivilDays::civilFromDays(start.day);
    const CivilDate endDate = CivilDays::civilFromDays(end.day);
    int months = (endDate.year - startDate.year) * 12 + (endDate.month - startDate.month);
    // A month is whole once the end reaches the start's day of the month and time of day;
    // a month lacking that day (31 January to 28 February) is not yet whole.
    const auto startPlace = std::pair{startDate.day, start.second};
    const auto endPlace = std::pair{endDate.day, end.second};
    if (months > 0 && endPlace < startPlace) {
        --months;
    } else if (months < 0 && endPlace > startPlace) {
        ++months;
    }
    return months;
}

}  // namespace vantello
