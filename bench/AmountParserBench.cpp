// Parses per second of AmountParser::parse over the kind of cells a statement import reads:
// Italian and English amounts, euro signs, no-break spaces, and text that is not an amount.

#include "core/ledger/AmountParser.hpp"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

const std::vector<std::string>& mixedCells() {
    static const std::vector<std::string> cells{
        "1.250,00", "12,50",    "€ 3,99",          "1 250,00 €",     "0,125",   "abc",
        "12.000",   "-300",     "1\u00A0250,00 €", "1\u202F250,00",  "4,2",     "1,250.00",
        "99",       "€12",      " 45,90 ",         "1.234.567,89",   "12,",     "Bonifico",
        "0,00",     "2.500",    "\u20AC\u00A078,30", "1,2345",       ",50",     "1500,00",
    };
    return cells;
}

void parseCells(benchmark::State& state, const std::vector<std::string>& cells) {
    for (auto _ : state) {
        for (const auto& cell : cells) benchmark::DoNotOptimize(vantello::AmountParser::parse(cell));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(cells.size()));
}

void BM_ParseMixedCells(benchmark::State& state) { parseCells(state, mixedCells()); }

void BM_ParsePlainASCII(benchmark::State& state) {
    static const std::vector<std::string> cells{"1.250,00", "12,50", "12.000", "0,125", "1500,00", "99"};
    parseCells(state, cells);
}

void BM_ParseWithNoBreakSpaceAndEuro(benchmark::State& state) {
    static const std::vector<std::string> cells{"1\u00A0250,00 €", "€\u00A03,99", "1\u202F250,00"};
    parseCells(state, cells);
}

}  // namespace

BENCHMARK(BM_ParseMixedCells);
BENCHMARK(BM_ParsePlainASCII);
BENCHMARK(BM_ParseWithNoBreakSpaceAndEuro);
