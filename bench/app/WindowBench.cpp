// What the main window costs the main thread: the start, from reading the 100,000-movement
// ledger to the first painted window; switching the month shown (model, list, tiles and the
// paint that follows); and scrolling the list of a month that holds 10,000 movements, a page at
// a time. Goals: the start under 1 s; a month switch under 16 ms, one frame.

#include "app/model/LedgerAnalyses.hpp"
#include "app/model/ProfilesController.hpp"
#include "app/model/SidebarItems.hpp"
#include "app/screens/MainWindow.hpp"
#include "bench/GeneratedLedger.hpp"
#include "core/files/LedgerStore.hpp"

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollBar>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

using namespace vantello;
using namespace vantello::app;

// A data folder holding a ledger, and the controller and window made on it.
struct Desk {
    QTemporaryDir home;
    std::filesystem::path root = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};

    explicit Desk(const LedgerData& data) { LedgerStore(root / LedgerStore::fileName).save(data); }

    std::unique_ptr<ProfilesController> controller() {
        return std::make_unique<ProfilesController>(ProfilesController::Setup{
            root, bench::romeCalendar(), bench::benchNow, &preferences, [](const std::filesystem::path&) {}, nullptr,
            nullptr});
    }
};

// Runs the events waiting and paints the window now, as the next frame would.
void paint(QWidget& window) {
    QApplication::processEvents();
    window.repaint();
}

void startToFirstPaintedWindow(benchmark::State& state) {
    Desk desk(bench::generatedLedger().data());
    for (auto _ : state) {
        auto profiles = desk.controller();
        MainWindow window(*profiles, desk.preferences);
        window.resize(1280, 800);
        window.show();
        paint(window);
        state.PauseTiming();
        window.close();
        profiles.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(startToFirstPaintedWindow)->Unit(benchmark::kMillisecond)->Iterations(5);

void switchingMonth(benchmark::State& state) {
    Desk desk(bench::generatedLedger().data());
    auto profiles = desk.controller();
    MainWindow window(*profiles, desk.preferences);
    window.resize(1280, 800);
    window.show();
    paint(window);
    bool back = true;
    for (auto _ : state) {
        if (back) {
            profiles->model().showPreviousMonth();
        } else {
            profiles->model().showNextMonth();
        }
        back = !back;
        paint(window);
    }
}
BENCHMARK(switchingMonth)->Unit(benchmark::kMillisecond)->Iterations(40);

// Each screen of the sidebar opened for the first time on the 100,000-movement ledger: the
// screen is made, reads the model and is painted. As in use, the window has been open for a
// moment, so the analyses the model works out ahead on its own thread are in hand.
void openingEachScreen(benchmark::State& state) {
    const SidebarItem& item = sidebarItems().at(static_cast<std::size_t>(state.range(0)));
    state.SetLabel(item.rawValue.toStdString());
    Desk desk(bench::generatedLedger().data());
    auto profiles = desk.controller();
    for (auto _ : state) {
        state.PauseTiming();
        // The window opens on another screen, so that this one is made inside the measure.
        profiles->model().setSidebarSelection(item.rawValue == QLatin1String("movements") ? QStringLiteral("charts")
                                                                                          : QStringLiteral("movements"));
        auto window = std::make_unique<MainWindow>(*profiles, desk.preferences);
        window->resize(1280, 800);
        window->show();
        paint(*window);
        while (!profiles->model().analyses().isReady()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.ResumeTiming();
        window->showScreen(item.rawValue);
        paint(*window);
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(openingEachScreen)->DenseRange(0, 14)->Unit(benchmark::kMillisecond)->Iterations(5);

// 10,000 movements in the month of `now`, on top of the generated ledger's accounts.
LedgerData crowdedMonth() {
    bench::LedgerGenerator generator;
    LedgerData data = generator.generate(1'000);
    const DateInterval month = bench::romeCalendar().monthInterval(bench::benchNow());
    const auto span = (month.end - month.start).count();
    std::vector<Transaction> movements(data.transactions.begin(), data.transactions.end());
    for (int i = 0; i < 10'000; ++i) {
        movements.push_back(generator.movement(month.start + std::chrono::seconds(span * i / 10'000)));
    }
    data.transactions = SharedList<Transaction>(std::move(movements));
    return data;
}

void scrollingACrowdedMonth(benchmark::State& state) {
    Desk desk(crowdedMonth());
    auto profiles = desk.controller();
    MainWindow window(*profiles, desk.preferences);
    window.resize(1280, 800);
    window.show();
    paint(window);
    QAbstractItemView* list = window.findChild<QAbstractItemView*>(QStringLiteral("movementsList"));
    if (!list) {
        state.SkipWithError("the movements list was not found");
        return;
    }
    QScrollBar* bar = list->verticalScrollBar();
    for (auto _ : state) {
        const int next = bar->value() + bar->pageStep();
        bar->setValue(next > bar->maximum() ? 0 : next);
        list->viewport()->repaint();
    }
    state.counters["rows"] = static_cast<double>(list->model()->rowCount());
}
BENCHMARK(scrollingACrowdedMonth)->Unit(benchmark::kMillisecond)->Iterations(200);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
