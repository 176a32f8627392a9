// The month store: one month read and written, a cell edit made durable and
// taken back, and thirty years of 400 entries a month loaded and rewritten,
// as the program does at start-up and in maintenance, and searched by words
// as the desktop's search does.
#include "LedgerGenerator.h"

#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "model/PaymentData.h"
#include "script/SearchResults.h"
#include "settings/Settings.h"
#include "storage/MonthFile.h"
#include "storage/TypedStreamReader.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <malloc.h>

namespace {

constexpr int kFirstYear = 1996;
constexpr int kYears = 30;
constexpr int kPerMonth = 400;

// The 30-year folder, written once for all benchmarks of this run.
QString thirtyYearFolder()
{
    static QTemporaryDir dir;
    static const bool written =
        LedgerGenerator().writeDataFolder(dir.path(), kFirstYear, kYears, kPerMonth);
    if (!written)
        qFatal("could not write the benchmark folder");
    return dir.path();
}

// Bytes the allocator has handed out and not taken back.
std::size_t heapInUse()
{
    return mallinfo2().uordblks;
}

void BM_ReadOneMonth(benchmark::State &state)
{
    const QString path = DataFolder::filePathForYear(thirtyYearFolder(), 2006, 5);
    for (auto _ : state) {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        auto list = MonthFile::decode(file.readAll(), nullptr);
        benchmark::DoNotOptimize(list.get());
    }
}
BENCHMARK(BM_ReadOneMonth)->Unit(benchmark::kMicrosecond);

// The archive format alone: the generic tree of one month, before any record
// is made from it.
void BM_ParseOneMonth(benchmark::State &state)
{
    QFile file(DataFolder::filePathForYear(thirtyYearFolder(), 2006, 5));
    file.open(QIODevice::ReadOnly);
    const QByteArray data = file.readAll();
    for (auto _ : state) {
        const TypedStreamReader reader(data);
        benchmark::DoNotOptimize(reader.rootObject());
    }
}
BENCHMARK(BM_ParseOneMonth)->Unit(benchmark::kMicrosecond);

// A data folder of its own with one month of entries, booked.
struct OneMonthFolder
{
    OneMonthFolder()
    {
        Settings().setDataPath(dir.path());
        list = controller.monthListForYear(2006, 5);
        list->addData(LedgerGenerator().monthRecords(2006, 5, kPerMonth));
    }

    QTemporaryDir dir;
    KController controller;
    std::shared_ptr<MonthDataList> list;
};

void BM_WriteOneMonth(benchmark::State &state)
{
    OneMonthFolder folder;
    for (auto _ : state)
        benchmark::DoNotOptimize(folder.controller.writeDataListToFile(folder.list.get()));
}
BENCHMARK(BM_WriteOneMonth)->Unit(benchmark::kMicrosecond);

// A cell edit from the setter's call until it is durable (its month in the
// change journal), a thousand in a row as a fast typist or a script would:
// the slowest one is what the event loop would feel.
void BM_CommitCellEdit(benchmark::State &state)
{
    OneMonthFolder folder;
    const PaymentDataPtr record = folder.list->dataListArray().constFirst();
    double slowest = 0;
    float amount = 1;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        record->setAmount(amount++);
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
        slowest = std::max(slowest, took.count());
    }
    state.counters["slowest_ms"] = slowest;
}
BENCHMARK(BM_CommitCellEdit)->Unit(benchmark::kMicrosecond)->Iterations(1000)->Repetitions(5);

// Taking a cell edit back and making it again, each durable at once.
void BM_UndoCellEdit(benchmark::State &state)
{
    OneMonthFolder folder;
    KController::Change change;
    QObject::connect(&folder.controller, &KController::changeRecorded,
                     [&change](const KController::Change &made) { change = made; });
    folder.list->dataListArray().constFirst()->setAmount(12345);
    bool before = true;
    for (auto _ : state) {
        benchmark::DoNotOptimize(folder.controller.restoreChange(change, before));
        before = !before;
    }
}
BENCHMARK(BM_UndoCellEdit)->Unit(benchmark::kMicrosecond)->Repetitions(5)->ReportAggregatesOnly();

void BM_ReadAllDataThirtyYears(benchmark::State &state)
{
    Settings().setDataPath(thirtyYearFolder());
    std::size_t held = 0;
    for (auto _ : state) {
        // Asking the allocator walks its whole heap, and letting go of the
        // cache is not part of loading: neither is timed.
        state.PauseTiming();
        const std::size_t before = heapInUse();
        state.ResumeTiming();
        KController controller;
        controller.readAllData();
        state.PauseTiming();
        held = heapInUse() - before;
        controller.releaseAllDataWithSave(false);
        state.ResumeTiming();
    }
    state.counters["entries"] = kYears * 12 * kPerMonth;
    state.counters["heap_MB"] = double(held) / (1024.0 * 1024.0);
}
BENCHMARK(BM_ReadAllDataThirtyYears)->Unit(benchmark::kMillisecond);

void BM_ResaveAllDataFileThirtyYears(benchmark::State &state)
{
    Settings().setDataPath(thirtyYearFolder());
    for (auto _ : state) {
        KController controller;
        controller.resaveAllDataFile();
    }
}
BENCHMARK(BM_ResaveAllDataFileThirtyYears)->Unit(benchmark::kMillisecond);

// The desktop's search over every month, loaded: a word no entry holds reads
// all 144,000 entries; a common one stops at the newest twenty.
void BM_DesktopSearchThirtyYears(benchmark::State &state, const QString &words)
{
    Settings().setDataPath(thirtyYearFolder());
    KController controller;
    controller.readListPreference();
    controller.readAllData();
    for (auto _ : state)
        benchmark::DoNotOptimize(SearchResults::resultIDs(controller, words));
}
BENCHMARK_CAPTURE(BM_DesktopSearchThirtyYears, no_match, QStringLiteral("Zeppelin"))
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_DesktopSearchThirtyYears, common_words, QStringLiteral("Bakery Lunch"))
    ->Unit(benchmark::kMillisecond);

} // namespace
