#include "core/statements/StatementDate.hpp"

#include "core/base/CivilDays.hpp"
#include "core/base/Text.hpp"

#include <algorithm>
#include <string>

namespace vantello::StatementDate {
namespace {

using DateOrder = CSVImportOptions::DateOrder;

constexpr int firstYear = 1900;
constexpr int lastYear = 2200;
// Longer digit runs cannot be part of a date, and stopping here keeps the values in an int.
constexpr std::size_t maximumDigits = 9;

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
}

// Reads `min` to `max` digits at `position`, advancing it.
bool readDigits(std::string_view text, std::size_t& position, std::size_t min, std::size_t max, int& value) {
    std::size_t count = 0;
    value = 0;
    while (position < text.size() && count < max && isDigit(text[position])) {
        value = value * 10 + (text[position] - '0');
        ++position;
        ++count;
    }
    return count >= min;
}

bool equalsAsciiIgnoringCase(std::string_view text, std::string_view lowered) {
    if (text.size() != lowered.size()) return false;
    for (std::size_t index = 0; index < text.size(); ++index) {
        char c = text[index];
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
        if (c != lowered[index]) return false;
    }
    return true;
}

// What may close a time of day: nothing, a UTC offset ("Z", "+01:00", "-0500") or AM/PM.
bool isTimeSuffix(std::string_view text) {
    if (text.empty()) return true;
    for (const auto suffix : {"z", "am", "pm", "a.m.", "p.m."}) {
        if (equalsAsciiIgnoringCase(text, suffix)) return true;
    }
    if (text.front() != '+' && text.front() != '-') return false;
    std::size_t position = 1;
    int hours = 0;
    int minutes = 0;
    if (!readDigits(text, position, 2, 2, hours)) return false;
    if (position < text.size() && text[position] == ':') ++position;
    if (position < text.size() && !readDigits(text, position, 2, 2, minutes)) return false;
    return position == text.size() && hours <= 14 && minutes <= 59;
}

// "10:15", "8:05:30", "10:15:00.250", "10:15:00Z", "10:15 PM"...
bool isTimeOfDay(std::string_view text) {
    std::size_t position = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    if (!readDigits(text, position, 1, 2, hour)) return false;
    if (position >= text.size() || text[position] != ':') return false;
    ++position;
    if (!readDigits(text, position, 2, 2, minute)) return false;
    if (position < text.size() && text[position] == ':') {
        ++position;
        if (!readDigits(text, position, 2, 2, second)) return false;
        if (position + 1 < text.size() && (text[position] == '.' || text[position] == ',') &&
            isDigit(text[position + 1])) {
            ++position;
            while (position < text.size() && isDigit(text[position])) ++position;
        }
    }
    while (position < text.size() && text[position] == ' ') ++position;
    return hour <= 24 && minute <= 59 && second <= 60 && isTimeSuffix(text.substr(position));
}

std::string_view trimmedSpaces(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

// The date part of a cell that may go on with a time of day after a space or a "T"
// ("05/03/2024 10:15", "2024-03-05T10:15:00", "28 feb 2024. 08:15:02").
std::string_view withoutTimeOfDay(std::string_view text) {
    for (std::size_t index = 1; index < text.size(); ++index) {
        const char c = text[index];
        if (c != ' ' && !(c == 'T' && isDigit(text[index - 1]))) continue;
        if (!isTimeOfDay(trimmedSpaces(text.substr(index + 1)))) continue;
        std::string_view date = trimmedSpaces(text.substr(0, index));
        if (!date.empty() && (date.back() == '.' || date.back() == ',')) date.remove_suffix(1);
        return trimmedSpaces(date);
    }
    return text;
}

struct Token {
    std::string_view text;
    bool isNumber = false;
    int value = 0;
};

// Exactly three tokens (runs of digits or of letters) with what lies between them:
// gaps[0] before the first, gaps[3] after the last.
struct Tokens {
    std::array<Token, 3> tokens;
    std::array<std::string_view, 4> gaps;
};

std::optional<Tokens> tokenized(std::string_view text) {
    Tokens result;
    std::size_t count = 0;
    std::size_t gapStart = 0;
    for (std::size_t position = 0; position < text.size();) {
        const bool number = isDigit(text[position]);
        if (!number && !isLetter(text[position])) {
            ++position;
            continue;
        }
        std::size_t end = position;
        while (end < text.size() && (number ? isDigit(text[end]) : isLetter(text[end]))) {
            ++end;
        }
        if (count == 3 || (number && end - position > maximumDigits)) return std::nullopt;
        Token token{text.substr(position, end - position), number, 0};
        if (number) {
            for (const char digit : token.text) token.value = token.value * 10 + (digit - '0');
        }
        result.gaps[count] = text.substr(gapStart, position - gapStart);
        result.tokens[count++] = token;
        position = end;
        gapStart = end;
    }
    if (count != 3) return std::nullopt;
    result.gaps[3] = text.substr(gapStart);
    return result;
}

bool isNumericSeparator(std::string_view gap) {
    return gap.size() == 1 && (gap[0] == '/' || gap[0] == '-' || gap[0] == '.');
}

bool isNamedDateGap(std::string_view gap) {
    return gap.find_first_not_of(" /-.,") == std::string_view::npos;
}

// Italian and English month names; any prefix of three letters or more names its month, and no
// such prefix is shared by two different months ("mar", "giu", "sept", "dic", "dec"...).
constexpr std::array<std::array<std::string_view, 2>, 12> monthNames{{
    {"gennaio", "january"},
    {"febbraio", "february"},
    {"marzo", "march"},
    {"aprile", "april"},
    {"maggio", "may"},
    {"giugno", "june"},
    {"luglio", "july"},
    {"agosto", "august"},
    {"settembre", "september"},
    {"ottobre", "october"},
    {"novembre", "november"},
    {"dicembre", "december"},
}};

std::optional<int> monthNamed(std::string_view word) {
    const std::string name = Text::folded(word);
    if (name.size() < 3) return std::nullopt;
    for (std::size_t index = 0; index < monthNames.size(); ++index) {
        for (const auto full : monthNames[index]) {
            if (full.starts_with(name)) return static_cast<int>(index) + 1;
        }
    }
    return std::nullopt;
}

std::optional<CivilDate> validated(int year, int month, int day) {
    if (year < 100) year += 2000;
    if (month < 1 || month > 12 || day < 1 || day > 31 || year < firstYear || year > lastYear) {
        return std::nullopt;
    }
    if (!CivilDays::isValidDate(year, month, day)) return std::nullopt;
    return CivilDate{year, month, day};
}

std::optional<CivilDate> fromNumbers(const Tokens& parts, DateOrder order) {
    const auto& t = parts.tokens;
    switch (order) {
        case DateOrder::dayMonthYear: return validated(t[2].value, t[1].value, t[0].value);
        case DateOrder::yearMonthDay: return validated(t[0].value, t[1].value, t[2].value);
        case DateOrder::monthDayYear: return validated(t[2].value, t[0].value, t[1].value);
    }
    return std::nullopt;
}

// "5 mar 2024", "05-Mar-2024", "Apr 8, 2018", "2024 mar 5": of the two numbers, the first is
// the year when it has three digits or more, else the day.
std::optional<CivilDate> fromNamedMonth(const Tokens& parts) {
    std::optional<int> month;
    std::array<const Token*, 2> numbers{};
    std::size_t numberCount = 0;
    for (const auto& token : parts.tokens) {
        if (token.isNumber) {
            if (numberCount == 2) return std::nullopt;
            numbers[numberCount++] = &token;
        } else {
            if (month) return std::nullopt;
            month = monthNamed(token.text);
            if (!month) return std::nullopt;
        }
    }
    if (!month || numberCount != 2) return std::nullopt;
    if (!parts.gaps[0].empty() || !(parts.gaps[3].empty() || parts.gaps[3] == ".")) return std::nullopt;
    if (!isNamedDateGap(parts.gaps[1]) || !isNamedDateGap(parts.gaps[2])) return std::nullopt;
    const bool yearFirst = numbers[0]->text.size() >= 3;
    const int year = yearFirst ? numbers[0]->value : numbers[1]->value;
    const int day = yearFirst ? numbers[1]->value : numbers[0]->value;
    return validated(year, *month, day);
}

bool isAllNumbers(const Tokens& parts) {
    return parts.tokens[0].isNumber && parts.tokens[1].isNumber && parts.tokens[2].isNumber;
}

bool isWrittenWithDigits(const Tokens& parts) {
    return isAllNumbers(parts) && parts.gaps[0].empty() && parts.gaps[3].empty() &&
           isNumericSeparator(parts.gaps[1]) && isNumericSeparator(parts.gaps[2]);
}

std::optional<Tokens> dateTokens(std::string_view cell) {
    // Cells come with line breaks and no-break spaces at their ends.
    return tokenized(withoutTimeOfDay(Text::trimmedView(cell)));
}

// "20240305", as Dutch and German banks write it: year, month and day whatever the order.
std::optional<CivilDate> fromCompactDigits(std::string_view cell) {
    const std::string_view text = Text::trimmedView(cell);
    if (text.size() != 8 || !std::all_of(text.begin(), text.end(), isDigit)) return std::nullopt;
    const auto number = [&](std::size_t start, std::size_t length) {
        int value = 0;
        for (const char digit : text.substr(start, length)) value = value * 10 + (digit - '0');
        return value;
    };
    return validated(number(0, 4), number(4, 2), number(6, 2));
}

}  // namespace

std::optional<WrittenNumbers> writtenNumbers(std::string_view cell) {
    const auto parts = dateTokens(cell);
    if (!parts || !isWrittenWithDigits(*parts)) return std::nullopt;
    WrittenNumbers numbers;
    for (std::size_t index = 0; index < 3; ++index) {
        numbers.values[index] = parts->tokens[index].value;
        numbers.digitCounts[index] = static_cast<int>(parts->tokens[index].text.size());
    }
    return numbers;
}

std::optional<CivilDate> civilDate(std::string_view cell, DateOrder order) {
    const auto parts = dateTokens(cell);
    if (!parts) return fromCompactDigits(cell);
    if (isAllNumbers(*parts)) return isWrittenWithDigits(*parts) ? fromNumbers(*parts, order) : std::nullopt;
    return fromNamedMonth(*parts);
}

std::optional<Instant> read(std::string_view cell, DateOrder order, const Calendar& calendar) {
    const auto day = civilDate(cell, order);
    if (!day) return std::nullopt;
    return calendar.date(*day, 12);
}

}  // namespace vantello::StatementDate
