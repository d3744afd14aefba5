#pragma once
// Moments for tests: the Europe/Rome calendar the tests run in, wall-clock times there, and UTC
// times worked out with std::chrono alone, so they can check what the Calendar computes.

#include "core/base/Calendar.hpp"

namespace vantello::testing {

// One calendar in Europe/Rome shared by every test.
[[nodiscard]] const Calendar& rome();

// A wall-clock time in Rome, with Calendar::date's rules on clock-change days. A day that does
// not exist (30 February) throws std::invalid_argument.
[[nodiscard]] Instant at(int year, int month, int day, int hour = 12, int minute = 0, int second = 0);
[[nodiscard]] Instant at(CivilDate day, int hour = 12, int minute = 0, int second = 0);

// A time in UTC; a day that does not exist throws std::invalid_argument.
[[nodiscard]] Instant utc(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

}  // namespace vantello::testing
