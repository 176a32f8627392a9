#include "budget/BudgetBook.h"

#include "budget/BudgetFile.h"
#include "model/DataList.h"
#include "storage/DurableFile.h"

#include <QFile>

BudgetBook::BudgetBook(QObject *parent)
    : QObject(parent)
{
}

void BudgetBook::load(const QString &folder)
{
    m_folder = folder;
    m_loaded = true;
    m_plan = {};
    m_problem.clear();
    const QString path = BudgetFile::pathIn(folder);
    QFile file(path);
    if (file.exists()) {
        std::optional<BudgetPlan> plan;
        if (file.open(QIODevice::ReadOnly))
            plan = BudgetFile::decode(file.readAll(), &m_problem);
        else
            m_problem = file.errorString();
        if (plan)
            m_plan = *plan;
        else
            emit budgetFileUnreadable(path, m_problem);
    }
    emit budgetsChanged();
}

void BudgetBook::reload()
{
    if (m_loaded)
        load(m_folder);
}

bool BudgetBook::setPlan(const BudgetPlan &plan, QString *error)
{
    if (!m_problem.isEmpty()) {
        if (error)
            *error = tr("The budget file %1 cannot be read (%2); mend or remove it first.")
                         .arg(BudgetFile::pathIn(m_folder), m_problem);
        return false;
    }
    if (!DurableFile::write(BudgetFile::pathIn(m_folder), BudgetFile::encode(plan), error))
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
