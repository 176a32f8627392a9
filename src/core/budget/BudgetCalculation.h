#pragma once

#include "budget/BudgetPlan.h"
#include "model/PaymentData.h"

#include <QHash>
#include <QList>
#include <QMap>

// What the budgets say of one month: per budgeted category, and for all
// spending, what was spent against what the month may take. Pure: the
// caller hands in the spending of the months it asks for.
namespace BudgetCalculation {

// Category index to the month's spending in it, income left out. Summed in
// double like the month's totals, so cents are kept.
using Spending = QHash<int, double>;
Spending spendingOf(const PaymentArray &records, int incomeCategory);

// Rolling over looks back at most this far, so that an old start does not
// make every month read decades of files.
inline constexpr int LookBackMonths = 120;

// The earliest month (year-month key) whose spending the month's figures
// need: the month itself unless a budget rolls over into it.
int firstMonthNeeded(const BudgetPlan &plan, int yearMonth);

struct Line
{
    // The category index; -1 for all spending.
    int category = -1;
    double spent = 0;
    // The month's own amount.
    double budget = 0;
    // What earlier months left over (negative: overspent) and rolled on.
    double carried = 0;

    double available() const { return budget + carried; }
    double left() const { return available() - spent; }
    // Spent as a share of what is available; past 1 when overspent, and
    // infinite when something was spent of nothing.
    double share() const;

    friend bool operator==(const Line &, const Line &) = default;
};

struct Report
{
    // The budgeted categories, by index.
    QList<Line> categories;
    // All spending: against its own amount when the plan has one, else the
    // budgeted categories together. Nothing without any budget.
    std::optional<Line> total;
};

// The figures of the month. `spendingByMonth` maps year-month keys to the
// spending of every month from firstMonthNeeded() to the month itself; a
// month missing from it counts as spending nothing.
Report report(const BudgetPlan &plan, int yearMonth, const QMap<int, Spending> &spendingByMonth);

} // namespace BudgetCalculation
