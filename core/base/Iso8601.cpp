#include "core/base/Iso8601.hpp"

#include "core/base/CivilDays.hpp"

#include <algorithm>
#include <cstdio>

namespace vantello::Iso8601 {

namespace {

// Reads the text left to right; every step fails without moving on bad input.
class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) {}

    std::optional<int> digits(int count) {
        if (text_.size() - position_ < static_cast<std::size_t>(count)) {
            return std::nullopt;
        }
        int value = 0;
        for (int index = 0; index < count; ++index) {
            const char character = text_[position_ + static_cast<std::size_t>(index)];
            if (character < '0' || character > '9') {
                return std::nullopt;
            }
            value = value * 10 + (character - '0');
        }
        position_ += static_cast<std::size_t>(count);
        return value;
    }

    bool skip(char expected) {
        if (position_ < text_.size() && text_[position_] == expected) {
            ++position_;
            return true;
        }
        return false;
    }

    bool skipDigits() {
        const std::size_t first = position_;
        while (position_ < text_.size() && text_[position_] >= '0' && text_[position_] <= '9') {
            ++position_;
        }
        return position_ > first;
    }

    [[nodiscard]] bool atEnd() const { return position_ == text_.size(); }

private:
    std::string_view text_;
    std::size_t position_ = 0;
};

// Seconds east of UTC, from "Z", "+01:00", "+0100" or "-05:30".
std::optional<int> readOffset(Reader& reader) {
    if (reader.skip('Z')) {
        return 0;
    }
    int sign = 0;
    if (reader.skip('+')) {
        sign = 1;
    } else if (reader.skip('-')) {
        sign = -1;
    } else {
        return std::nullopt;
    }
    const auto hours = reader.digits(2);
    if (!hours) {
        return std::nullopt;
    }
    reader.skip(':');
    const auto minutes = reader.digits(2);
    if (!minutes || *hours > 23 || *minutes > 59) {
        return std::nullopt;
    }
    return sign * (*hours * 3600 + *minutes * 60);
}

}  // namespace

std::string format(Instant moment) {
    const std::int64_t seconds = std::clamp<std::int64_t>(unixSeconds(moment),
                                                          CivilDays::firstSecond,
                                                          CivilDays::lastSecond);
    const std::int64_t day = CivilDays::floorDivide(seconds, CivilDays::secondsPerDay);
    const auto secondOfDay = static_cast<int>(seconds - day * CivilDays::secondsPerDay);
    const CivilDate date = CivilDays::civilFromDays(day);
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02dZ", date.year, date.month,
                  date.day, secondOfDay / 3600, secondOfDay / 60 % 60, secondOfDay % 60);
    return text;
}

std::string day(CivilDate date) {
    char text[48];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
    return text;
}

std::string month(CivilDate date) {
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d", date.year, date.month);
    return text;
}

std::optional<Instant> parse(std::string_view text) {
    Reader reader(text);
    const auto year = reader.digits(4);
    const bool dateRead = year && reader.skip('-');
    const auto month = dateRead ? reader.digits(2) : std::nullopt;
    const auto day = month && reader.skip('-') ? reader.digits(2) : std::nullopt;
    const auto hour = day && reader.skip('T') ? reader.digits(2) : std::nullopt;
    const auto minute = hour && reader.skip(':') ? reader.digits(2) : std::nullopt;
    const auto second = minute && reader.skip(':') ? reader.digits(2) : std::nullopt;
    if (!second) {
        return std::nullopt;
    }
    if (reader.skip('.') && !reader.skipDigits()) {
        return std::nullopt;
    }
    const auto offset = readOffset(reader);
    if (!offset || !reader.atEnd() || !CivilDays::isValidDate(*year, *month, *day) ||
        *hour > 23 || *minute > 59 || *second > 59) {
        return std::nullopt;
    }
    const std::int64_t wallClock =
        CivilDays::daysFromCivil(*year, *month, *day) * CivilDays::secondsPerDay +
        *hour * 3600 + *minute * 60 + *second;
    return instantFromUnixSeconds(wallClock - *offset);
}

}  // namespace vantello::Iso8601
