#include "core/base/PeopleFormat.hpp"

#include <unicode/currunit.h>
#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <memory>

namespace vantello::PeopleFormat {

namespace {

icu::Locale localeNamed(const std::string& localeName) {
    return localeName.empty() ? icu::Locale::getDefault() : icu::Locale(localeName.c_str());
}

std::string utf8(const icu::UnicodeString& text) {
    std::string result;
    text.toUTF8String(result);
    return result;
}

}  // namespace

std::string euro(const Decimal& amount, const std::string& localeName) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::CurrencyUnit currency(u"EUR", status);
    const std::string digits = amount.description();
    // Money is rounded plainly (halves away from zero); ICU would round halves to even.
    const auto formatter = icu::number::NumberFormatter::withLocale(localeNamed(localeName))
                               .unit(currency)
                               .roundingMode(UNUM_ROUND_HALFUP);
    const icu::number::FormattedNumber formatted =
        formatter.formatDecimal(icu::StringPiece(digits.data(), static_cast<int32_t>(digits.size())), status);
    const icu::UnicodeString text = formatted.toString(status);
    if (U_FAILURE(status)) return amount.toFixed(2) + " EUR";
    return utf8(text);
}

std::string shortDate(Instant moment, const Calendar& calendar, const std::string& localeName) {
    // The day is settled in the calendar's zone; ICU then writes that day at midnight UTC, so
    // its own zone handling cannot move the date.
    const CivilDate day = calendar.civilDate(moment);
    const std::chrono::sys_days civil{std::chrono::year{day.year} / std::chrono::month{static_cast<unsigned>(day.month)} /
                                      std::chrono::day{static_cast<unsigned>(day.day)}};
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(civil.time_since_epoch()).count();
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, localeNamed(localeName)));
    if (!format) {
        return std::to_string(day.year) + "-" + (day.month < 10 ? "0" : "") + std::to_string(day.month) + "-" +
               (day.day < 10 ? "0" : "") + std::to_string(day.day);
    }
    format->adoptTimeZone(icu::TimeZone::createTimeZone(u"UTC"));
    icu::UnicodeString text;
    format->format(static_cast<UDate>(milliseconds), text);
    return utf8(text);
}

}  // namespace vantello::PeopleFormat
