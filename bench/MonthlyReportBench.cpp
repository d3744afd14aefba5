// The monthly report by category over a large ledger (100,000 movements over ten years),
// without the load: every month's income and expense totals per category.

#include "bench/GeneratedLedger.hpp"
#include "core/analysis/MonthlyCategoryTotals.hpp"
#include "core/ledger/Ledger.hpp"

#include <benchmark/benchmark.h>

namespace {

using namespace vantello;

void MonthlyCategoryTotalsOfWholeHistory(benchmark::State& state) {
    const Ledger& ledger = bench::generatedLedger();
    const Calendar& calendar = bench::romeCalendar();
    for (auto _ : state) {
        auto months = monthlyCategoryTotals(ledger, std::nullopt, calendar);
        benchmark::DoNotOptimize(months);
    }
    state.counters["movements"] = static_cast<double>(ledger.transactions().size());
}
BENCHMARK(MonthlyCategoryTotalsOfWholeHistory)->Unit(benchmark::kMillisecond);

}  // namespace
