#pragma once

#include <QDate>

// The month a window shows is kept as its MonthKey, that a stepper moves by
// one; these rules keep it a real month.
namespace MonthStepping {

// A value stepped past December or before January, made the first or last
// month of the neighbouring year: 200713 gives 200801, 200800 gives 200712.
int normalized(int value);

// The booking month `today` belongs to: with a closing day in force, a day
// after it already counts to the next month.
QDate bookingMonth(const QDate &today, bool changeMonthLastDate, int monthLastDate);

} // namespace MonthStepping
