#include "core/base/PeopleFormat.hpp"

#include <unicode/currunit.h>
#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <map>
#include <memory>
#include <string>

namespace vantello::PeopleFormat {

namespace {

icu::Locale localeNamed(const std::string& localeName) {
    return localeName.empty() ? icu::Locale::getDefault() : icu::Locale(localeName.c_str());
}

// Making a formatter costs far more than using one, and screens format many amounts and dates:
// each thread keeps one per locale (ICU's date formats may not be shared between threads).
const icu::number::LocalizedNumberFormatter& euroFormatter(const icu::Locale& locale) {
    thread_local std::map<std::string, icu::number::LocalizedNumberFormatter> formatters;
    const auto found = formatters.find(locale.getName());
    if (found != formatters.end()) return found->second;
    UErrorCode status = U_ZERO_ERROR;
    const icu::CurrencyUnit currency(u"EUR", status);
    // Money is rounded plainly (halves away from zero); ICU would round halves to even.
    return formatters
        .emplace(locale.getName(),
                 icu::number::NumberFormatter::withLocale(locale).unit(currency).roundingMode(UNUM_ROUND_HALFUP))
        .first->second;
}

icu::DateFormat* mediumDateFormat(const icu::Locale& locale) {
    thread_local std::map<std::string, std::unique_ptr<icu::DateFormat>> formats;
    auto& format = formats[locale.getName()];
    if (!format) {
        format.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kMedium, locale));
        if (format) format->adoptTimeZone(icu::TimeZone::createTimeZone(u"UTC"));
    }
    return format.get();
}

std::string utf8(const icu::UnicodeString& text) {
    std::string result;
    text.toUTF8String(result);
    return result;
}

}  // namespace

void setDefaultLocale(const std::string& localeName) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(localeName.c_str()), status);
}

std::string euro(const Decimal& amount, const std::string& localeName) {
    UErrorCode status = U_ZERO_ERROR;
    const std::string digits = amount.description();
    const icu::number::FormattedNumber formatted = euroFormatter(localeNamed(localeName)).formatDecimal(icu::StringPiece(digits.data(), static_cast<int32_t>(digits.size())), status);
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
    icu::DateFormat* format = mediumDateFormat(localeNamed(localeName));
    if (!format) {
        return std::to_string(day.year) + "-" + (day.month < 10 ? "0" : "") + std::to_string(day.month) + "-" +
               (day.day < 10 ? "0" : "") + std::to_string(day.day);
    }
    icu::UnicodeString text;
    format->format(static_cast<UDate>(milliseconds), text);
    return utf8(text);
}

}  // namespace vantello::PeopleFormat
