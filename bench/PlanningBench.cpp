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

// The generated history with a few years of charges that come back: three monthly services (one
// of them raising its price once) and a yearly one, so that detection has series to confirm.
const Ledger& ledgerWithSubscriptions() {
    static const Ledger ledger = [] {
        LedgerData data = generatedLedger().data();
        std::vector<Transaction> movements(data.transactions.begin(), data.transactions.end());
        const struct {
            const char* note;
            std::int64_t cents;
            std::int64_t raisedCents;
            int everyMonths;
        } services[]{{"Netflix", 1299, 1399, 1}, {"Spotify", 1099, 1099, 1}, {"Palestra", 4500, 4500, 1},
                     {"Assicurazione casa", 18900, 18900, 12}};
        for (const auto& service : services) {
            for (int month = 0; month < 48; month += service.everyMonths) {
                Transaction charge;
                charge.id = Uuid::random();
                charge.amount = Decimal(month < 30 ? service.cents : service.raisedCents, -2);
                charge.date = *rome.adding(CalendarUnit::month, -month - 1, benchNow());
                charge.categoryID = "abbonamenti";
                charge.note = service.note;
                movements.push_back(std::move(charge));
            }
        }
        data.transactions = SharedList<Transaction>(std::move(movements));
        return Ledger(std::move(data));
    }();
    return ledger;
}

void subscriptionDetection(benchmark::State& state) {
    const Ledger& ledger = ledgerWithSubscriptions();
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
