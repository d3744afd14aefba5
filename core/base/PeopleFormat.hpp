#pragma once
// Amounts and dates as people read them in a locale (ICU): "-1.234,50 €" and "5 mar 2026" in
// Italian, "-€1,234.50" and "Mar 5, 2026" in English. For texts shown to the user.

#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Instant.hpp"

#include <string>

namespace vantello::PeopleFormat {

// The locale used where none is named: the interface language's ("it_IT", "en_US"), set once at
// start, so that the messages the core builds speak like the screens around them.
void setDefaultLocale(const std::string& localeName);

// A currency amount in euros (ISO code EUR) in the ICU locale `localeName` ("it_IT", "en_US");
// ICU's default locale when empty. The exact decimal goes to ICU as text, never as a double.
[[nodiscard]] std::string euro(const Decimal& amount, const std::string& localeName = "");

// The abbreviated date style of the locale ("5 mar 2026" in it_IT), for the calendar day the
// moment falls on in the calendar's zone.
[[nodiscard]] std::string shortDate(Instant moment, const Calendar& calendar,
                                    const std::string& localeName = "");

}  // namespace vantello::PeopleFormat
