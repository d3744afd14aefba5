#include "core/analysis/SmartAlerts.hpp"

#include "core/analysis/DuplicateChargeAlerts.hpp"
#include "core/analysis/LowBalanceAlerts.hpp"
#include "core/analysis/MonthForecast.hpp"
#include "core/analysis/NegativeForecastAlerts.hpp"
#include "core/analysis/UnusualSpendingAlerts.hpp"

#include <iterator>

namespace vantello {

namespace {

constexpr int forecastBasisMonths = 3;

void append(std::vector<SmartAlert>& alerts, std::vector<SmartAlert> more) {
    alerts.insert(alerts.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

}  // namespace

std::vector<SmartAlert> smartAlerts(const Ledger& ledger, const AlertSettings& settings,
                                    const std::set<std::string>& dismissed, Instant now, const Calendar& calendar) {
    using Kind = SmartAlert::Kind;
    std::vector<SmartAlert> alerts;
    if (settings.isEnabled(Kind::unusualSpending)) append(alerts, unusualSpendingAlerts(ledger, now, calendar));
    if (settings.isEnabled(Kind::possibleDuplicate)) append(alerts, duplicateChargeAlerts(ledger, now, calendar));
    if (settings.isEnabled(Kind::lowBalance)) append(alerts, lowBalanceAlerts(ledger, now, calendar));
    if (settings.isEnabled(Kind::negativeForecast)) {
        const MonthForecast forecast = monthForecast(ledger, now, calendar, forecastBasisMonths);
        append(alerts, negativeForecastAlerts(forecast.projectedBalance(), now, calendar));
    }
    std::erase_if(alerts, [&dismissed](const SmartAlert& alert) { return dismissed.contains(alert.id); });
    return alerts;
}

}  // namespace vantello
