// How long a search over the whole ledger and the alerts of one month take on 100,000
// movements over ten years. Goal: one search under 10 ms, whether by text (a merchant's name,
// plain or with an accent, which cannot take the ASCII fast path) or by structured conditions
// (the last twelve months, expenses of two categories between 20 and 100 € on the main account).

#include "bench/GeneratedLedger.hpp"
#include "core/analysis/SmartAlerts.hpp"
#include "core/analysis/TransactionSearch.hpp"
#include "core/ledger/Ledger.hpp"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

using namespace vantello;

using bench::benchNow;
using bench::generatedLedger;

const Calendar& rome = bench::romeCalendar();

void runSearch(benchmark::State& state, const TransactionFilter& filter) {
    const Ledger& ledger = generatedLedger();
    const Instant now = benchNow();
    std::vector<Transaction> found;
    for (auto _ : state) {
        found = searchTransactions(ledger, filter, now, rome);
        benchmark::DoNotOptimize(found);
    }
    state.counters["found"] = static_cast<double>(found.size());
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(ledger.transactions().size()));
}

void BM_TextSearch(benchmark::State& state, const std::string& text) {
    TransactionFilter filter;
    filter.text = text;
    runSearch(state, filter);
}
BENCHMARK_CAPTURE(BM_TextSearch, ascii, std::string("bar centrale"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_TextSearch, accented, std::string("farmacìa"))->Unit(benchmark::kMillisecond);

void BM_StructuredSearch(benchmark::State& state) {
    TransactionFilter filter;
    filter.period = TransactionFilter::Period::last12Months;
    filter.kind = TransactionKind::expense;
    filter.categoryIDs = {"ristoranti", "svago"};
    filter.minAmount = Decimal(20);
    filter.maxAmount = Decimal(100);
    filter.accountID = std::string(mainAccountID);
    runSearch(state, filter);
}
BENCHMARK(BM_StructuredSearch)->Unit(benchmark::kMillisecond);

void BM_MonthAlerts(benchmark::State& state) {
    const Ledger& ledger = generatedLedger();
    const Instant now = benchNow();
    std::vector<SmartAlert> alerts;
    for (auto _ : state) {
        alerts = smartAlerts(ledger, AlertSettings{}, ledger.data().dismissedAlerts, now, rome);
        benchmark::DoNotOptimize(alerts);
    }
    state.counters["alerts"] = static_cast<double>(alerts.size());
}
BENCHMARK(BM_MonthAlerts)->Unit(benchmark::kMillisecond);

}  // namespace
