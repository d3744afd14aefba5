#include "core/analysis/NegativeForecastAlerts.hpp"

#include "core/analysis/MonthKey.hpp"
#include "core/base/Localization.hpp"
#include "core/base/PeopleFormat.hpp"

namespace vantello {

std::vector<SmartAlert> negativeForecastAlerts(const Decimal& projectedBalance, Instant now,
                                               const Calendar& calendar) {
    if (projectedBalance.sign() >= 0) return {};
    SmartAlert alert;
    alert.id = "previsione-negativa-" + monthKey(now, calendar);
    alert.kind = SmartAlert::Kind::negativeForecast;
    alert.title = L10n::tr("Previsione di fine mese negativa");
    alert.message =
        L10n::tr("Al ritmo attuale il mese chiude a {saldo}.", {{"saldo", PeopleFormat::euro(projectedBalance)}});
    return {alert};
}

}  // namespace vantello
