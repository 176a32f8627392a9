// The budget pane's figures for a busy month: 400 entries, every spending
// category budgeted and rolling over a year, so that the twelve months before
// (400 entries each) are summed as well.
#include "LedgerGenerator.h"
#include "TestLedgerController.h"

#include "budget/BudgetBook.h"
#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "settings/Settings.h"

#include <benchmark/benchmark.h>

#include <QHash>
#include <QTemporaryDir>

namespace {

constexpr int kPerMonth = 400;

void BM_BudgetOfAMonth(benchmark::State &state)
{
    const QStringList categories = LedgerGenerator::categoryNames();
    TestLedgerController controller(categories, LedgerGenerator::paywayNames());
    const int income = int(categories.size()) - 1;
    LedgerGenerator generator;
    QHash<int, std::shared_ptr<DataList>> months;
    for (int key = 202501; key <= 202512; ++key) {
        auto list = std::make_shared<MonthDataList>(key / 100, key % 100);
        list->setDataListArray(generator.monthRecords(key / 100, key % 100, kPerMonth));
        months.insert(key, list);
    }
    MonthDataList shown(2026, 1);
    shown.setDataListArray(generator.monthRecords(2026, 1, kPerMonth));

    BudgetPlan plan;
    for (int category = 0; category < income; ++category)
        plan.categories.insert(category, {10000, {{202601, 12000}}, true, 202501});
    plan.allSpending = CategoryBudget{300000, {}, true, 202501};
    QTemporaryDir folder;
    Settings().setDataPath(folder.path());
    KController ledger;
    BudgetBook &book = *ledger.budgets();
    if (!book.changePlan([&plan](BudgetPlan &stored) { stored = plan; })) {
        state.SkipWithError("the budgets could not be written");
        return;
    }
    const auto listOf = [&months](int year, int month) {
        return months.value(MonthKey::of(year, month));
    };
    for (auto _ : state)
        benchmark::DoNotOptimize(book.report(shown, income, listOf).total);
}
BENCHMARK(BM_BudgetOfAMonth)->Unit(benchmark::kMicrosecond);

} // namespace

