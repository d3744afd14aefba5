#include "app/model/MonthTiles.hpp"

#include "app/model/DisplayText.hpp"

#include <QStringList>

namespace vantello::app {

namespace {

std::string utf8(const QString& text) { return text.toStdString(); }

// An amount with its direction, "+" or "−", whichever way it goes.
QString signedText(const Decimal& amount) {
    return movementAmountText(amount.magnitude(), amount.sign() < 0 ? TransactionKind::expense : TransactionKind::income);
}

MonthTile::Tone toneOf(const Decimal& amount) {
    return amount.sign() < 0 ? MonthTile::Tone::expense : MonthTile::Tone::income;
}

// "+150,00 € rispetto a febbraio 2026".
QString againstPrevious(const Decimal& now, const Decimal& before, const QString& previousMonth) {
    return uiText("{difference} rispetto a {month}",
                  {{"difference", utf8(signedText(now - before))}, {"month", utf8(previousMonth)}});
}

QString forecastInfo(const MonthForecast& forecast) {
    const QStringList lines{
        uiText("Entrate e uscite del mese finora: {amount}", {{"amount", utf8(signedText(forecast.actual.net()))}}),
        uiText("Movimenti ricorrenti ancora previsti: {amount}",
               {{"amount", utf8(signedText(forecast.upcomingRecurring.net()))}}),
        uiText("Spesa variabile stimata: {amount}",
               {{"amount", utf8(signedText(-forecast.estimatedVariableExpenses))}}),
        QString::fromStdString(forecastExplanation(forecast)),
        uiText("Saldo previsto a fine mese: {amount}", {{"amount", utf8(signedText(forecast.projectedBalance()))}}),
    };
    return lines.join(QLatin1Char('\n'));
}

}  // namespace

std::vector<MonthTile> monthTiles(const MonthSummary& summary, const Calendar& calendar) {
    const Instant previousStart = calendar.adding(CalendarUnit::month, -1, summary.month.start)
                                      .value_or(summary.month.start);
    const QString previousMonth = monthTitle(previousStart, calendar);
    const PeriodTotals& now = summary.totals;
    const PeriodTotals& before = summary.previousTotals;

    std::vector<MonthTile> tiles;
    tiles.push_back({QStringLiteral("income"), uiText("Entrate"),
                     movementAmountText(now.income, TransactionKind::income),
                     againstPrevious(now.income, before.income, previousMonth), MonthTile::Tone::income, {}, {}});
    tiles.push_back({QStringLiteral("expenses"), uiText("Uscite"),
                     movementAmountText(now.expenses, TransactionKind::expense),
                     againstPrevious(now.expenses, before.expenses, previousMonth), MonthTile::Tone::expense, {}, {}});
    tiles.push_back({QStringLiteral("net"), uiText("Saldo del mese"), signedText(now.net()),
                     againstPrevious(now.net(), before.net(), previousMonth), toneOf(now.net()), {}, {}});

    if (summary.forecast) {
        const MonthForecast& forecast = *summary.forecast;
        const QString days = forecast.daysRemaining == 1
                                 ? uiText("Manca 1 giorno alla fine del mese")
                                 : uiText("Mancano {days} giorni alla fine del mese",
                                          {{"days", std::to_string(forecast.daysRemaining)}});
        tiles.push_back({QStringLiteral("forecast"), uiText("Stima a fine mese"),
                         signedText(forecast.projectedBalance()), days, toneOf(forecast.projectedBalance()),
                         uiText("Saldo previsto a fine mese: come è calcolato"), forecastInfo(forecast)});
    }
    if (summary.lowestBalance) {
        const LowestBalance& lowest = *summary.lowestBalance;
        tiles.push_back({QStringLiteral("lowestBalance"), uiText("Saldo più basso previsto"),
                         euroText(lowest.balance),
                         uiText("il {day}", {{"day", utf8(dayText(lowest.day, calendar))}}),
                         lowest.balance.sign() < 0 ? MonthTile::Tone::expense : MonthTile::Tone::neutral, {}, {}});
    }
    return tiles;
}

}  // namespace vantello::app
