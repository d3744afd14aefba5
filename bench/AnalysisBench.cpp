// How long the month screen takes to work out everything it shows for one month of a ledger of
// 100,000 movements over ten years: the totals of the month and of the month before, expenses by
// category and the donut, the twelve-month trend, the budgets, the forecast, the lowest balance
// ahead and the smart alerts. Goal: under 16 ms for the whole screen (one frame). The parts are
// measured one by one as well, to show where the time goes.

#include "bench/GeneratedLedger.hpp"
#include "core/analysis/BudgetStatus.hpp"
#include "core/analysis/CategoryBreakdown.hpp"
#include "core/analysis/CategorySlices.hpp"
#include "core/analysis/LowestBalance.hpp"
#include "core/analysis/MonthForecast.hpp"
#include "core/analysis/MonthSummary.hpp"
#include "core/analysis/MonthTrend.hpp"
#include "core/analysis/PeriodTotals.hpp"
#include "core/analysis/SmartAlerts.hpp"
#include "core/ledger/Ledger.hpp"

#include <benchmark/benchmark.h>

namespace {

using namespace vantello;

using bench::benchNow;
using bench::generatedLedger;

const Calendar& rome = bench::romeCalendar();

void monthScreen(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    const Instant now = benchNow();
    for (auto _ : state) {
        const DateInterval month = rome.monthInterval(now);
        const PeriodTotals totals = periodTotals(ledger, month);
        const PeriodTotals previous = periodTotals(ledger, rome.monthInterval(*rome.adding(CalendarUnit::month, -1, now)));
        const std::vector<CategoryTotal> breakdown = categoryBreakdown(ledger, month);
        const std::vector<CategorySlice> slices = categorySlices(breakdown, 6);
        const std::vector<MonthTotals> trend = monthTrend(ledger, 12, now, rome);
        const std::vector<BudgetStatus> budgets = budgetStatuses(ledger, month);
        const MonthForecast forecast = monthForecast(ledger, now, rome, 3);
        const LowestBalance lowest = lowestBalance(ledger, now, rome);
        const std::vector<SmartAlert> alerts =
            smartAlerts(ledger, AlertSettings{}, ledger.data().dismissedAlerts, now, rome);
        benchmark::DoNotOptimize(totals);
        benchmark::DoNotOptimize(previous);
        benchmark::DoNotOptimize(slices);
        benchmark::DoNotOptimize(trend);
        benchmark::DoNotOptimize(budgets);
        benchmark::DoNotOptimize(forecast);
        benchmark::DoNotOptimize(lowest);
        benchmark::DoNotOptimize(alerts);
    }
}
BENCHMARK(monthScreen)->Unit(benchmark::kMillisecond);

// The same screen through the single walk of monthSummary, then the alerts.
void monthScreenInOneWalk(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    const Instant now = benchNow();
    for (auto _ : state) {
        benchmark::DoNotOptimize(monthSummary(ledger, now, now, rome));
        benchmark::DoNotOptimize(smartAlerts(ledger, AlertSettings{}, ledger.data().dismissedAlerts, now, rome));
    }
}
BENCHMARK(monthScreenInOneWalk)->Unit(benchmark::kMillisecond);

void monthSummaryAlone(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    const Instant now = benchNow();
    for (auto _ : state) benchmark::DoNotOptimize(monthSummary(ledger, now, now, rome));
}
BENCHMARK(monthSummaryAlone)->Unit(benchmark::kMillisecond);

void periodTotalsOfAMonth(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    const DateInterval month = rome.monthInterval(benchNow());
    for (auto _ : state) benchmark::DoNotOptimize(periodTotals(ledger, month));
}
BENCHMARK(periodTotalsOfAMonth)->Unit(benchmark::kMillisecond);

void breakdownAndSlices(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    const DateInterval month = rome.monthInterval(benchNow());
    for (auto _ : state) benchmark::DoNotOptimize(categorySlices(categoryBreakdown(ledger, month), 6));
}
BENCHMARK(breakdownAndSlices)->Unit(benchmark::kMillisecond);

void twelveMonthTrend(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    for (auto _ : state) benchmark::DoNotOptimize(monthTrend(ledger, 12, benchNow(), rome));
}
BENCHMARK(twelveMonthTrend)->Unit(benchmark::kMillisecond);

void budgets(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    const DateInterval month = rome.monthInterval(benchNow());
    for (auto _ : state) benchmark::DoNotOptimize(budgetStatuses(ledger, month));
}
BENCHMARK(budgets)->Unit(benchmark::kMillisecond);

void forecast(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    for (auto _ : state) benchmark::DoNotOptimize(monthForecast(ledger, benchNow(), rome, 3));
}
BENCHMARK(forecast)->Unit(benchmark::kMillisecond);

void lowestBalanceAhead(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    for (auto _ : state) benchmark::DoNotOptimize(lowestBalance(ledger, benchNow(), rome));
}
BENCHMARK(lowestBalanceAhead)->Unit(benchmark::kMillisecond);

void alerts(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    for (auto _ : state) {
        benchmark::DoNotOptimize(smartAlerts(ledger, AlertSettings{}, ledger.data().dismissedAlerts, benchNow(), rome));
    }
}
BENCHMARK(alerts)->Unit(benchmark::kMillisecond);

}  // namespace
