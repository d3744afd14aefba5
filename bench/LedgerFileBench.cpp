// How long the ledger file of a large ledger (100,000 movements over ten years) takes to load
// into a Ledger and to save, how big it is, and what one edit costs the main thread when it is
// done the application's way: copy the ledger, change the copy, compare it with the original.
// Goals: load and save under half a second, an edit under 5 ms.

#include "bench/LedgerGenerator.hpp"
#include "core/files/LedgerStore.hpp"
#include "core/ledger/Ledger.hpp"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace vantello;

// One generated ledger and one saved file for the whole run; the folder goes away at exit.
struct Fixture {
    LedgerData data;
    std::filesystem::path folder;
    std::filesystem::path file;

    Fixture() : data(bench::LedgerGenerator().generate()) {
        std::string pattern = (std::filesystem::temp_directory_path() / "vantello-bench-XXXXXX").string();
        folder = ::mkdtemp(pattern.data());
        file = folder / LedgerStore::fileName;
        // Saved as the application saves: movements newest first, main account present.
        LedgerStore(file).save(Ledger(data).data());
    }
    ~Fixture() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    static Fixture& shared() {
        static Fixture fixture;
        return fixture;
    }
};

void LedgerFileLoad(benchmark::State& state) {
    const auto& fixture = Fixture::shared();
    const LedgerStore store(fixture.file);
    for (auto _ : state) {
        auto ledger = std::make_unique<Ledger>(store.load());
        benchmark::DoNotOptimize(ledger);
        // Throwing the previous ledger away is not part of loading.
        state.PauseTiming();
        ledger.reset();
        state.ResumeTiming();
    }
    state.counters["fileBytes"] = static_cast<double>(std::filesystem::file_size(fixture.file));
    state.counters["movements"] = static_cast<double>(fixture.data.transactions.size());
}
BENCHMARK(LedgerFileLoad)->Unit(benchmark::kMillisecond)->UseRealTime();

void LedgerFileSave(benchmark::State& state) {
    const auto& fixture = Fixture::shared();
    const LedgerStore store(fixture.folder / "salvato" / LedgerStore::fileName);
    for (auto _ : state) store.save(fixture.data);
    state.counters["fileBytes"] = static_cast<double>(std::filesystem::file_size(store.file()));
}
BENCHMARK(LedgerFileSave)->Unit(benchmark::kMillisecond)->UseRealTime();

void LedgerEditOnMainThread(benchmark::State& state) {
    const Ledger ledger(Fixture::shared().data);
    const Transaction added = bench::LedgerGenerator(7).movement(instantFromUnixSeconds(1'735'000'000));
    for (auto _ : state) {
        Ledger copy = ledger;
        copy.add(added);
        const bool changed = !(copy == ledger);
        benchmark::DoNotOptimize(changed);
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(LedgerEditOnMainThread)->Unit(benchmark::kMicrosecond);

// The same edit if the movements were a plain vector copied whole: the reference that the
// shared chunks of the ledger's movement list are measured against.
void PlainVectorEditForComparison(benchmark::State& state) {
    const std::vector<Transaction> movements = Fixture::shared().data.transactions.toVector();
    const Transaction added = bench::LedgerGenerator(7).movement(instantFromUnixSeconds(1'735'000'000));
    for (auto _ : state) {
        std::vector<Transaction> copy = movements;
        copy.push_back(added);
        const bool changed = !(copy == movements);
        benchmark::DoNotOptimize(changed);
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(PlainVectorEditForComparison)->Unit(benchmark::kMicrosecond);

}  // namespace
