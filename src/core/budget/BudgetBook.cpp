#include "budget/BudgetBook.h"

#include "budget/BudgetFile.h"
#include "ledger/KController.h"
#include "model/DataList.h"
#include "model/Notifications.h"

BudgetBook::BudgetBook(KController *ledger)
    : QObject(ledger)
    , m_ledger(ledger)
{
    m_ledger->registerFolderFile(BudgetFile::FileName, &BudgetFile::renumbered);
    // Once loaded, the budgets are those the folder holds: after a
    // renumbering, its undo, another computer's change or a change of folder.
    const auto reload = [this] {
        if (m_loaded)
            load();
    };
    connect(m_ledger, &KController::folderFileRewritten, this, [reload](const QString &name) {
        if (name == BudgetFile::FileName)
            reload();
    });
    connect(Notifications::instance(), &Notifications::listPreferenceHasUpDated, this, reload);
}

void BudgetBook::load()
{
    m_folder = m_ledger->dataFolderPath();
    m_loaded = true;
    m_plan = {};
    m_problem.clear();
    const std::optional<QByteArray> content =
        m_ledger->readFolderFile(BudgetFile::FileName, &m_problem);
    const std::optional<BudgetPlan> plan =
        content ? BudgetFile::decode(*content, &m_problem) : std::nullopt;
    if (plan)
        m_plan = *plan;
    if (!m_problem.isEmpty())
        emit budgetFileUnreadable(BudgetFile::pathIn(m_folder), m_problem);
    emit budgetsChanged();
}

bool BudgetBook::changePlan(const std::function<void(BudgetPlan &)> &edit, QString *error)
{
    m_ledger->takeOutsideChangeOf(BudgetFile::FileName);
    if (!m_problem.isEmpty()) {
        if (error)
            *error = tr("The budget file %1 cannot be read (%2); mend or remove it first.")
                         .arg(BudgetFile::pathIn(m_folder), m_problem);
        return false;
    }
    BudgetPlan plan = m_plan;
    edit(plan);
    if (plan == m_plan)
        return true;
    if (!m_ledger->changeFolderFile(
            {BudgetFile::FileName, BudgetFile::encode(m_plan), BudgetFile::encode(plan)},
            tr("Change of Budgets"), error))
        return false;
    m_plan = plan;
    emit budgetsChanged();
    return true;
}

BudgetCalculation::Report BudgetBook::report(const DataList &month, int incomeCategory,
                                             const MonthLists &listOf) const
{
    const int shown = MonthKey::of(month.year(), month.month());
    QMap<int, BudgetCalculation::Spending> spending;
    spending.insert(shown, BudgetCalculation::spendingOf(month.dataListArray(), incomeCategory));
    for (int key = BudgetCalculation::firstMonthNeeded(m_plan, shown); key < shown;
         key = MonthKey::added(key, 1)) {
        if (const auto list = listOf(key / 100, key % 100))
            spending.insert(key, BudgetCalculation::spendingOf(list->dataListArray(),
                                                               incomeCategory));
    }
    return BudgetCalculation::report(m_plan, shown, spending);
}
