// What the application model costs the main thread on a ledger of 100,000 movements: one change
// through `apply` (copy, operation, comparison, hand-over to the writer, signal), one undo, and
// the start of a model, from reading the file to the first values of the month screen.
// Goals: a change and an undo under 5 ms; the start under 0.5 s.

#include "app/model/LedgerViewModel.hpp"
#include "bench/LedgerGenerator.hpp"
#include "core/files/LedgerStore.hpp"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

using namespace vantello;
using namespace vantello::app;

const Calendar& rome() {
    static const Calendar calendar("Europe/Rome");
    return calendar;
}

Instant benchNow() { return *rome().date({2024, 12, 15}, 12); }

// A data folder holding the generated ledger, written once per program.
struct BenchFolder {
    QTemporaryDir home;
    std::filesystem::path folder = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};

    BenchFolder() { LedgerStore(folder / LedgerStore::fileName).save(bench::LedgerGenerator().generate(100'000)); }

    std::unique_ptr<LedgerViewModel> model() {
        return std::make_unique<LedgerViewModel>(
            LedgerViewModel::Setup{folder, std::nullopt, rome(), benchNow, &preferences, std::nullopt});
    }
};

BenchFolder& benchFolder() {
    static BenchFolder folder;
    return folder;
}

Transaction coffee(int cents) {
    Transaction made;
    made.id = Uuid::random();
    made.amount = Decimal(cents, -2);
    made.date = benchNow();
    made.categoryID = "ristoranti";
    made.note = "Caffè";
    return made;
}

void changeThroughApply(benchmark::State& state) {
    auto model = benchFolder().model();
    int cents = 100;
    for (auto _ : state) {
        model->apply(QStringLiteral("Aggiungi movimento"), [&](Ledger& ledger) { ledger.add(coffee(++cents)); });
    }
    model.reset();  // the writes are waited for outside the measure
}
BENCHMARK(changeThroughApply)->Unit(benchmark::kMillisecond)->Iterations(50);

void undoOfAChange(benchmark::State& state) {
    auto model = benchFolder().model();
    int cents = 100;
    for (auto _ : state) {
        state.PauseTiming();
        model->apply(QStringLiteral("Aggiungi movimento"), [&](Ledger& ledger) { ledger.add(coffee(++cents)); });
        state.ResumeTiming();
        model->undo();
    }
    model.reset();
}
BENCHMARK(undoOfAChange)->Unit(benchmark::kMillisecond)->Iterations(50);

void startToFirstMonthValues(benchmark::State& state) {
    for (auto _ : state) {
        auto model = benchFolder().model();
        benchmark::DoNotOptimize(model->monthSummary());
        benchmark::DoNotOptimize(model->monthTransactions());
        state.PauseTiming();
        model.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(startToFirstMonthValues)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
