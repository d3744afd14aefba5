#include "app/model/EditorConversion.hpp"

#include "app/model/DisplayText.hpp"
#include "app/settings/Language.hpp"
#include "core/base/DecimalFormat.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/rates/Currencies.hpp"

#include <cstdio>

namespace vantello::app {

namespace {

// A rate as published, every digit kept ("1,0832"), with the interface's decimal separator.
std::string rateText(const Decimal& rate) {
    std::string text = rate.description();
    const std::string separator = decimalSeparator(interfaceLocaleName());
    if (const auto point = text.find('.'); point != std::string::npos) text.replace(point, 1, separator);
    return text;
}

// The calendar day a day key ("2026-03-05") names, at noon.
std::optional<Instant> dayOfKey(const std::string& key, const Calendar& calendar) {
    int year = 0;
    int month = 0;
    int day = 0;
    if (std::sscanf(key.c_str(), "%d-%d-%d", &year, &month, &day) != 3) return std::nullopt;
    return calendar.date(CivilDate{year, month, day}, 12);
}

}  // namespace

std::optional<EditorConversion> conversionToEuro(const std::optional<ExchangeRates>& rates,
                                                 std::string_view currency, std::string_view originalAmountText,
                                                 Instant date, const Calendar& calendar) {
    if (currency.empty() || currency == Currencies::ledger) return std::nullopt;
    EditorConversion conversion;
    const auto found = rates ? rates->lookUp(currency, date, calendar) : std::nullopt;
    const auto rateDay = found ? dayOfKey(found->day, calendar) : std::nullopt;
    if (!found || !rateDay || found->rate.sign() <= 0) {
        conversion.line = uiText("Nessun cambio BCE disponibile: scrivi l'importo in euro.");
        return conversion;
    }
    conversion.hasRate = true;
    const std::string code(currency);
    const std::string day = dayText(*rateDay, calendar).toStdString();
    conversion.line = uiText("1 EUR = {rate} {code} · cambio BCE del {day}",
                             {{"rate", rateText(found->rate)}, {"code", code}, {"day", day}});
    const auto original = AmountParser::parse(originalAmountText);
    if (original && original->sign() > 0) {
        if (const auto euro = ExchangeRates::toEuro(*original, found->rate)) {
            conversion.euroAmountText = plainAmountText(*euro, decimalSeparator(interfaceLocaleName()));
        }
    }
    return conversion;
}

}  // namespace vantello::app
