// The planning screens on a ledger of 100,000 movements over ten years: subscriptions detected
// over the whole history, a what-if scenario with its projection and goal dates, and the
// twelve-month net-worth history. Goal: each under 20 ms.

#include "bench/GeneratedLedger.hpp"
#include "core/planning/NetWorth.hpp"
#include "core/planning/Scenario.hpp"
#include "core/planning/SubscriptionDetection.hpp"

#include <benchmark/benchmark.h>

namespace {

using namespace vantello;

using bench::benchNow;
using bench::generatedLedger;

const Calendar& rome = bench::romeCalendar();

void subscriptionDetection(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    std::size_t found = 0;
    for (auto _ : state) {
        const std::vector<DetectedSubscription> subscriptions = detectSubscriptions(ledger, rome);
        found = subscriptions.size();
        benchmark::DoNotOptimize(subscriptions);
    }
    state.counters["subscriptions"] = static_cast<double>(found);
}
BENCHMARK(subscriptionDetection)->Unit(benchmark::kMillisecond);

void scenario(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    const std::vector<ScenarioAdjustment> adjustments{
        {Uuid::random(), ScenarioAdjustment::Category{"ristoranti", -0.2}},
        {Uuid::random(), ScenarioAdjustment::Income{0.05}},
        {Uuid::random(), ScenarioAdjustment::MonthlyExpense{Decimal(150)}},
    };
    for (auto _ : state) benchmark::DoNotOptimize(simulateScenario(ledger, adjustments, benchNow(), rome));
}
BENCHMARK(scenario)->Unit(benchmark::kMillisecond);

void netWorthOfTwelveMonths(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    for (auto _ : state) benchmark::DoNotOptimize(netWorthHistory(ledger, 12, benchNow(), rome));
}
BENCHMARK(netWorthOfTwelveMonths)->Unit(benchmark::kMillisecond);

}  // namespace
