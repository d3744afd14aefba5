#pragma once
// Every day, week, month and year question goes through one Calendar: a Gregorian calendar
// in a named time zone (ICU), the way the user sees dates. A Calendar is a value; copies are
// independent. Methods are const and safe to call from several threads at once.
// Dates are proleptic Gregorian, years 1...9999.

#include "core/base/Instant.hpp"

#include <memory>
#include <optional>
#include <string>

namespace vantello {

class ZoneRules;

enum class CalendarUnit { day, weekOfYear, month, year };

class Calendar {
public:
    // A calendar in the given IANA zone ("Europe/Rome"); throws std::invalid_argument for an
    // unknown zone.
    explicit Calendar(const std::string& timeZoneId);
    // The user's current zone (TZ, then the system's setting, falling back to UTC).
    [[nodiscard]] static Calendar current();

    Calendar(const Calendar& other);
    Calendar& operator=(const Calendar& other);
    Calendar(Calendar&&) noexcept;
    Calendar& operator=(Calendar&&) noexcept;
    ~Calendar();

    [[nodiscard]] const std::string& timeZoneId() const { return zoneId_; }

    // The calendar day of a moment in this zone.
    [[nodiscard]] CivilDate civilDate(Instant moment) const;
    // Seconds east of UTC in force at a moment.
    [[nodiscard]] int utcOffsetSeconds(Instant moment) const;

    // The first existing moment of the day; midnight may be skipped by a clock change.
    [[nodiscard]] Instant startOfDay(Instant moment) const;
    [[nodiscard]] DateInterval dayInterval(Instant moment) const;
    [[nodiscard]] DateInterval monthInterval(Instant moment) const;
    [[nodiscard]] DateInterval yearInterval(Instant moment) const;

    // Wall-clock time on a calendar day. A time that does not exist on that day (clocks moved
    // forward) gives the next existing time; a time that happens twice gives the first.
    // Nothing when the date itself does not exist (31 February) or is out of range.
    [[nodiscard]] std::optional<Instant> date(CivilDate day, int hour = 0, int minute = 0,
                                              int second = 0) const;
    // 12:00:00 of the moment's calendar day (with the rules of `date`).
    [[nodiscard]] Instant noon(Instant moment) const;

    // Adds whole units keeping the wall-clock time; months and years clamp to the end of a
    // shorter month (31 January + 1 month = 28/29 February). Nothing when out of range.
    [[nodiscard]] std::optional<Instant> adding(CalendarUnit unit, int count, Instant moment) const;

    // The start of the first day on or after the moment's day whose day of the month is
    // `dayOfMonth` (a month lacking that day is passed over). Nothing for a day outside 1...31.
    [[nodiscard]] std::optional<Instant> nextDayWithDayOfMonth(Instant moment, int dayOfMonth) const;

    // Whole calendar days / months from the day (month) of `from` to that of `to`; negative when
    // `to` comes first. Months compare day and time too (31 Jan to 28 Feb is 0 months).
    [[nodiscard]] int wholeDaysBetween(Instant from, Instant to) const;
    [[nodiscard]] int wholeMonthsBetween(Instant from, Instant to) const;

private:
    // Immutable and shared between copies, so copying a Calendar is cheap.
    std::shared_ptr<const ZoneRules> rules_;
    std::string zoneId_;
};

}  // namespace vantello
