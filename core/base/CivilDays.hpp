#pragma once
// Proleptic Gregorian day arithmetic on plain integers: day numbers counted from 1970-01-01,
// with no time zone. Calendar and Iso8601 share it so both agree on what a valid date is.

#include "core/base/Instant.hpp"

#include <cstdint>

namespace vantello::CivilDays {

inline constexpr std::int64_t secondsPerDay = 86400;
// The years the data files and the calendar accept.
inline constexpr int firstYear = 1;
inline constexpr int lastYear = 9999;

// Rounds towards negative infinity, so that moments before 1970 land on the right day.
[[nodiscard]] constexpr std::int64_t floorDivide(std::int64_t value, std::int64_t divisor) {
    const std::int64_t quotient = value / divisor;
    return (value % divisor != 0 && (value < 0) != (divisor < 0)) ? quotient - 1 : quotient;
}

[[nodiscard]] constexpr bool isLeapYear(std::int64_t year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

[[nodiscard]] constexpr int daysInMonth(std::int64_t year, int month) {
    constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeapYear(year) ? 29 : lengths[month - 1];
}

[[nodiscard]] constexpr bool isValidDate(std::int64_t year, int month, int day) {
    return year >= firstYear && year <= lastYear && month >= 1 && month <= 12 && day >= 1 &&
           day <= daysInMonth(year, month);
}

// Day number of a date (H. Hinnant's days_from_civil); the date must be a real one.
[[nodiscard]] constexpr std::int64_t daysFromCivil(std::int64_t year, int month, int day) {
    year -= month <= 2 ? 1 : 0;
    const std::int64_t era = floorDivide(year, 400);
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

// The date of a day number; callers keep the day number within a few million years.
[[nodiscard]] constexpr CivilDate civilFromDays(std::int64_t days) {
    days += 719468;
    const std::int64_t era = floorDivide(days, 146097);
    const std::int64_t dayOfEra = days - era * 146097;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t shiftedMonth = (5 * dayOfYear + 2) / 153;
    const int day = static_cast<int>(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
    const int month = static_cast<int>(shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9);
    const std::int64_t year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    return CivilDate{static_cast<int>(year), month, day};
}

// Unix seconds of the first and last second of the accepted years.
inline constexpr std::int64_t firstSecond = daysFromCivil(firstYear, 1, 1) * secondsPerDay;
inline constexpr std::int64_t lastSecond =
    (daysFromCivil(lastYear, 12, 31) + 1) * secondsPerDay - 1;

}  // namespace vantello::CivilDays
