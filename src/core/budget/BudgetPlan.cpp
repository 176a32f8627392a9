#include "budget/BudgetPlan.h"

int YearMonthKey::added(int key, int months)
{
    // Counted in months from year 0, so that the steps carry across years.
    const int index = key / 100 * 12 + key % 100 - 1 + months;
    return YearMonthKey::of(index / 12, index % 12 + 1);
}
