#include "cli/DayOption.hpp"

#include <charconv>
#include <chrono>
#include <optional>
#include <string>

namespace vantello::cli {

namespace {

bool number(std::string_view part, int& value) {
    const auto [end, error] = std::from_chars(part.data(), part.data() + part.size(), value);
    return error == std::errc() && end == part.data() + part.size();
}

std::optional<CivilDate> dayOf(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    CivilDate day;
    if (!number(text.substr(0, 4), day.year) || !number(text.substr(5, 2), day.month) ||
        !number(text.substr(8, 2), day.day)) {
        return std::nullopt;
    }
    return day;
}

}  // namespace

Instant noonOfDayOption(std::string_view option, std::string_view text, const Calendar& calendar) {
    const auto day = dayOf(text);
    const auto noon = day ? calendar.date(*day, 12) : std::nullopt;
    if (!noon) {
        throw ArgumentError("Valore non valido per " + std::string(option) + ": «" + std::string(text) +
                            "» (serve un giorno AAAA-MM-GG).");
    }
    return *noon;
}

std::optional<CivilDate> monthOption(std::string_view text) {
    int year = 0;
    int month = 0;
    if (text.size() != 7 || text[4] != '-') return std::nullopt;
    if (!number(text.substr(0, 4), year) || !number(text.substr(5, 2), month)) return std::nullopt;
    if (year < 1 || month < 1 || month > 12) return std::nullopt;
    return CivilDate{year, month, 1};
}

Instant nowFromArguments(const Arguments& arguments, const Calendar& calendar) {
    if (const auto today = arguments.value("--today")) return noonOfDayOption("--today", *today, calendar);
    return clockNow();
}

}  // namespace vantello::cli
