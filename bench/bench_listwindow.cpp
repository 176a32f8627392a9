// The list window's month switch as a user feels it: fetching the month,
// filtering it by the search panel, resetting the table and redrawing the
// totals, with a month of 400 entries.
#include "LedgerGenerator.h"
#include "TestDataFolder.h"

#include "ledger/KController.h"
#include "list/ListWinController.h"

#include <QApplication>
#include <QPixmap>

#include <benchmark/benchmark.h>

namespace {

constexpr int kPerMonth = 400;

struct Ledger
{
    TestDataFolder home;
    KController controller;

    Ledger()
    {
        LedgerGenerator().writeDataFolder(home.freshDataFolder(), 2006, 1, kPerMonth);
        controller.readListPreference();
    }
};

// Back and forth between two months already loaded; with the argument 1
// the whole window is then drawn into an image, as a paint of the screen
// would draw it.
void BM_SwitchMonth(benchmark::State &state)
{
    const bool paint = state.range(0) != 0;
    Ledger ledger;
    ListWinController window(&ledger.controller);
    window.show();
    window.showListOfYear(2006, 6);
    window.showListOfYear(2006, 5);
    int month = 5;
    for (auto _ : state) {
        month = month == 5 ? 6 : 5;
        window.showListOfYear(2006, month);
        if (paint)
            benchmark::DoNotOptimize(window.grab());
        benchmark::DoNotOptimize(window.currentDataList());
    }
}
BENCHMARK(BM_SwitchMonth)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The same, each month read from its file first.
void BM_SwitchMonthFromFile(benchmark::State &state)
{
    Ledger ledger;
    ListWinController window(&ledger.controller);
    window.show();
    int month = 5;
    for (auto _ : state) {
        state.PauseTiming();
        ledger.controller.releaseAllDataWithSave(false);
        month = month == 5 ? 6 : 5;
        state.ResumeTiming();
        window.showListOfYear(2006, month);
        benchmark::DoNotOptimize(window.currentDataList());
    }
}
BENCHMARK(BM_SwitchMonthFromFile)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
