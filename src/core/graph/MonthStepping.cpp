#include "graph/MonthStepping.h"

namespace MonthStepping {

int normalized(int value)
{
    const int month = value % 100;
    if (month == 13)
        return value / 100 * 100 + 101;
    if (month == 0)
        return value / 100 * 100 - 88;
    return value;
}

QDate bookingMonth(const QDate &today, bool changeMonthLastDate, int monthLastDate)
{
    const QDate first(today.year(), today.month(), 1);
    if (changeMonthLastDate && monthLastDate < today.day())
        return first.addMonths(1);
    return first;
}

} // namespace MonthStepping
