#include "budget/BudgetCalculation.h"

#include <algorithm>
#include <limits>

namespace BudgetCalculation {

namespace {

int rollOverStart(const CategoryBudget &budget, int yearMonth)
{
    if (!budget.rollOver)
        return yearMonth;
    const int earliest = MonthKey::added(yearMonth, -LookBackMonths);
    return std::clamp(budget.rollOverSince, earliest, yearMonth);
}

double spentIn(const Spending &spending, int category)
{
    if (category >= 0)
        return spending.value(category, 0.0);
    double all = 0;
    for (const double amount : spending)
        all += amount;
    return all;
}

Line lineOf(const CategoryBudget &budget, int category, int yearMonth,
            const QMap<int, Spending> &spendingByMonth)
{
    Line line{category};
    for (int month = rollOverStart(budget, yearMonth); month < yearMonth;
         month = MonthKey::added(month, 1))
        line.carried += budget.amountFor(month) - spentIn(spendingByMonth.value(month), category);
    line.budget = budget.amountFor(yearMonth);
    line.spent = spentIn(spendingByMonth.value(yearMonth), category);
    return line;
}

} // namespace

Spending spendingOf(const PaymentArray &records, int incomeCategory)
{
    Spending spending;
    for (const PaymentDataPtr &record : records) {
        if (record->category() != incomeCategory)
            spending[record->category()] += record->amount();
    }
    return spending;
}

double Line::share() const
{
    const double of = available();
    if (of > 0)
        return spent / of;
    return spent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

int firstMonthNeeded(const BudgetPlan &plan, int yearMonth)
{
    int first = yearMonth;
    for (const CategoryBudget &budget : plan.categories)
        first = std::min(first, rollOverStart(budget, yearMonth));
    if (plan.allSpending)
        first = std::min(first, rollOverStart(*plan.allSpending, yearMonth));
    return first;
}

Report report(const BudgetPlan &plan, int yearMonth, const QMap<int, Spending> &spendingByMonth)
{
    Report result;
    for (auto it = plan.categories.cbegin(); it != plan.categories.cend(); ++it)
        result.categories.append(lineOf(it.value(), it.key(), yearMonth, spendingByMonth));
    if (plan.allSpending) {
        result.total = lineOf(*plan.allSpending, -1, yearMonth, spendingByMonth);
    } else if (!result.categories.isEmpty()) {
        Line total;
        for (const Line &line : std::as_const(result.categories)) {
            total.spent += line.spent;
            total.budget += line.budget;
            total.carried += line.carried;
        }
        result.total = total;
    }
    return result;
}

} // namespace BudgetCalculation
