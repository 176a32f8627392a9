#pragma once

#include "model/MonthKey.h"

#include <QMap>

#include <optional>

// How much one spending category (or all spending together) may take a month:
// one amount for every month, replaced in the months that have their own.
// With rolling over, what is left at a month's end (or overspent) is added to
// the next month's amount, from the month the rolling over began.
struct CategoryBudget
{
    double amount = 0;
    // Year-month key to that month's own amount.
    QMap<int, double> months;
    bool rollOver = false;
    // The first month whose remainder rolls on (year-month key).
    int rollOverSince = 0;

    double amountFor(int yearMonth) const { return months.value(yearMonth, amount); }

    friend bool operator==(const CategoryBudget &, const CategoryBudget &) = default;
};

// The household's budgets: by category index (never the income category),
// and optionally one for all spending together.
struct BudgetPlan
{
    QMap<int, CategoryBudget> categories;
    std::optional<CategoryBudget> allSpending;

    bool isEmpty() const { return categories.isEmpty() && !allSpending; }

    friend bool operator==(const BudgetPlan &, const BudgetPlan &) = default;
};
