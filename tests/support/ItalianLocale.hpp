#pragma once
// For tests of texts built with amounts and dates: makes Italian ICU's default locale while it
// lives, and turns the no-break spaces ICU puts before "€" into plain ones for readable checks.

#include <unicode/locid.h>

#include <string>

namespace vantello::testing {

class ItalianLocale {
public:
    ItalianLocale() : previous_(icu::Locale::getDefault()) { setDefault(icu::Locale("it_IT")); }
    ~ItalianLocale() { setDefault(previous_); }
    ItalianLocale(const ItalianLocale&) = delete;
    ItalianLocale& operator=(const ItalianLocale&) = delete;

private:
    static void setDefault(const icu::Locale& locale) {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(locale, status);
    }
    icu::Locale previous_;
};

[[nodiscard]] inline std::string withPlainSpaces(std::string text) {
    for (const std::string nbsp : {"\u00A0", "\u202F"}) {
        for (auto found = text.find(nbsp); found != std::string::npos; found = text.find(nbsp)) {
            text.replace(found, nbsp.size(), " ");
        }
    }
    return text;
}

}  // namespace vantello::testing
