// The ledger model's hot paths: the change cycle of a month, its search, the
// sums and the day order of a year, and sorting thirty years of records.
#include "LedgerGenerator.h"
#include "TestLedgerController.h"

#include "model/MonthDataList.h"
#include "search/StringUtility.h"
#include "model/YearDataList.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

namespace {

constexpr int kPerMonth = 400;

// 12 months of a busy household, 400 records each.
PaymentArray yearOfRecords(int year)
{
    LedgerGenerator generator;
    PaymentArray records;
    for (int month = 1; month <= 12; ++month)
        records.append(generator.monthRecords(year, month, kPerMonth));
    return records;
}

void BM_MonthDataHasChanged(benchmark::State &state)
{
    TestLedgerController controller(LedgerGenerator::categoryNames(), LedgerGenerator::paywayNames());
    LedgerGenerator generator;
    MonthDataList list(2006, 5);
    list.setDataListArray(generator.monthRecords(2006, 5, kPerMonth));
    list.dataHasChanged();
    // One record moves to another day each time, as an edit in the table would.
    const PaymentDataPtr edited = list.dataListArray().at(kPerMonth / 2);
    int day = 1;
    for (auto _ : state) {
        edited->setInitializing(true);
        edited->setDate(day);
        day = day % 28 + 1;
        list.dataHasChanged();
        benchmark::DoNotOptimize(list.extractedTotal());
    }
}
BENCHMARK(BM_MonthDataHasChanged)->Unit(benchmark::kMicrosecond);

// A search as the list window builds it from a filled-in panel: days,
// keywords, an amount range and two categories.
void BM_MonthExtractList(benchmark::State &state)
{
    TestLedgerController controller(LedgerGenerator::categoryNames(), LedgerGenerator::paywayNames());
    LedgerGenerator generator;
    MonthDataList list(2006, 5);
    list.setDataListArray(generator.monthRecords(2006, 5, kPerMonth));
    list.dataHasChanged();
    ExtractKeyDict keys;
    keys.incomeNumber = int(LedgerGenerator::categoryNames().size()) - 1;
    keys.date = separateDateKeyToArray(u"1-20,25");
    keys.details = separateStringKeyToArray(u"Supermarket Bakery Lunch");
    keys.category = QList<int>{0, 1};
    keys.amountMin = 200;
    keys.amountMax = 5000;
    list.setextractKeyDict(keys);
    for (auto _ : state) {
        list.extractList();
        benchmark::DoNotOptimize(list.extractedTotal());
    }
}
BENCHMARK(BM_MonthExtractList)->Unit(benchmark::kMicrosecond);

void BM_YearCalcSumOfData(benchmark::State &state)
{
    TestLedgerController controller(LedgerGenerator::categoryNames(), LedgerGenerator::paywayNames());
    MonthDataList list(2006, 0);
    list.setDataListArray(yearOfRecords(2006));
    for (auto _ : state) {
        list.calcSumOfData();
        benchmark::DoNotOptimize(list.grandTotal());
    }
    state.SetItemsProcessed(state.iterations() * list.dataListArray().size());
}
BENCHMARK(BM_YearCalcSumOfData)->Unit(benchmark::kMicrosecond);

// Sorting a fresh copy of the shuffled records each round; making the copy
// is not timed.
void sortCopies(benchmark::State &state, const PaymentArray &records, QStringView key)
{
    for (auto _ : state) {
        state.PauseTiming();
        PaymentArray copy = records;
        copy.detach();
        state.ResumeTiming();
        DataList::sortList(copy, key);
        benchmark::DoNotOptimize(copy.constData());
    }
    state.SetItemsProcessed(state.iterations() * records.size());
}

void BM_YearSortByDate(benchmark::State &state)
{
    PaymentArray records = yearOfRecords(2006);
    std::shuffle(records.begin(), records.end(), std::mt19937(7));
    sortCopies(state, records, u"Date");
}
BENCHMARK(BM_YearSortByDate)->Unit(benchmark::kMillisecond);

void BM_ThirtyYearsSortByAmount(benchmark::State &state)
{
    PaymentArray records;
    LedgerGenerator generator;
    for (int year = 1990; year < 2020; ++year) {
        for (int month = 1; month <= 12; ++month)
            records.append(generator.monthRecords(year, month, kPerMonth));
    }
    std::shuffle(records.begin(), records.end(), std::mt19937(7));
    sortCopies(state, records, u"Amount");
}
BENCHMARK(BM_ThirtyYearsSortByAmount)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
