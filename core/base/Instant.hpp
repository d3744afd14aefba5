#pragma once
// A moment in time: whole seconds since 1970-01-01 UTC, which is what the ledger file keeps.

#include <chrono>

namespace vantello {

using Instant = std::chrono::sys_seconds;

// A half-open interval [start, end).
struct DateInterval {
    Instant start;
    Instant end;
    [[nodiscard]] bool contains(Instant moment) const { return start <= moment && moment < end; }
    bool operator==(const DateInterval&) const = default;
};

// A calendar day, without time or zone.
struct CivilDate {
    int year = 1970;
    int month = 1;  // 1...12
    int day = 1;    // 1...31
    auto operator<=>(const CivilDate&) const = default;
};

[[nodiscard]] inline Instant instantFromUnixSeconds(long long seconds) {
    return Instant{std::chrono::seconds{seconds}};
}
[[nodiscard]] inline long long unixSeconds(Instant moment) { return moment.time_since_epoch().count(); }

// The system clock's moment, to the second.
[[nodiscard]] inline Instant clockNow() {
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

}  // namespace vantello
