// Renumbering stored entries after the category list changed: one category
// moved across thirty years of 400 entries a month (144,000 entries in 360
// files), read, renumbered, written aside and swapped in as the program does
// it on confirming the preferences.
#include "LedgerGenerator.h"

#include "ledger/KController.h"
#include "settings/Settings.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int kFirstYear = 1996;
constexpr int kYears = 30;
constexpr int kPerMonth = 400;

void BM_RenumberOneCategoryThirtyYears(benchmark::State &state)
{
    for (auto _ : state) {
        // A new folder each time: the file system is slow to hand out inodes
        // next to ones freed seconds before, which a user who confirms the
        // preferences now and then never meets.
        state.PauseTiming();
        QTemporaryDir dir;
        if (!LedgerGenerator().writeDataFolder(dir.path(), kFirstYear, kYears, kPerMonth))
            qFatal("could not write the benchmark folder");
        Settings().setDataPath(dir.path());
        state.ResumeTiming();

        KController controller; // a cold cache: every month is read
        if (!controller.convertCategory(ConversionMap{{3, 2}, {2, 3}}))
            state.SkipWithError("the conversion was refused");
    }
    state.counters["entries"] = kYears * 12 * kPerMonth;
    state.counters["files"] = kYears * 12;
}
BENCHMARK(BM_RenumberOneCategoryThirtyYears)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(3);

// The same conversion again and again in one folder, as a user who changes
// the categories several times in a minute makes it.
void BM_RenumberRepeatedlyInOneFolder(benchmark::State &state)
{
    QTemporaryDir dir;
    if (!LedgerGenerator().writeDataFolder(dir.path(), kFirstYear, kYears, kPerMonth))
        qFatal("could not write the benchmark folder");
    Settings().setDataPath(dir.path());
    for (auto _ : state) {
        KController controller;
        if (!controller.convertCategory(ConversionMap{{3, 2}, {2, 3}}))
            state.SkipWithError("the conversion was refused");
    }
}
BENCHMARK(BM_RenumberRepeatedlyInOneFolder)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(3);

// Undo and redo of that renumbering, one after the other: each rewrites the
// months it touched through the same journal, from the contents kept.
void BM_UndoRenumberingThirtyYears(benchmark::State &state)
{
    QTemporaryDir dir;
    if (!LedgerGenerator().writeDataFolder(dir.path(), kFirstYear, kYears, kPerMonth))
        qFatal("could not write the benchmark folder");
    Settings().setDataPath(dir.path());
    KController controller;
    KController::Change change;
    QObject::connect(&controller, &KController::changeRecorded,
                     [&change](const KController::Change &made) { change = made; });
    if (!controller.convertCategory(ConversionMap{{3, 2}, {2, 3}}))
        qFatal("the conversion was refused");
    bool undo = true;
    for (auto _ : state) {
        QString error;
        if (!controller.restoreChange(change, undo, &error))
            state.SkipWithError(qPrintable(error));
        undo = !undo;
    }
    state.counters["months"] = double(change.months.size());
}
BENCHMARK(BM_UndoRenumberingThirtyYears)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(4);

} // namespace
