#include "core/base/DecimalFormat.hpp"

#include <unicode/dcfmtsym.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

namespace vantello {

std::string decimalSeparator(std::string_view localeName) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symbols(icu::Locale(std::string(localeName).c_str()), status);
    if (U_FAILURE(status)) return ".";
    std::string separator;
    symbols.getConstSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol).toUTF8String(separator);
    return separator.empty() ? "." : separator;
}

std::string plainAmountText(const Decimal& amount, std::string_view separator) {
    std::string text = amount.toFixed(2, '.');
    const auto point = text.find('.');
    if (point != std::string::npos) text.replace(point, 1, separator);
    return text;
}

}  // namespace vantello
