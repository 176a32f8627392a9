#pragma once

#include <QList>
#include <QtGlobal>

// Rounding of amounts for chart axes. Division by ten truncates toward zero
// throughout, as the axis maxima and labels of stored charts were made that way.

// The next number above n that keeps two or three leading digits:
// 12345 gives 13000, 100 gives 101, 999 gives 1000.
qint64 roundUpMax(qint64 n);

// Keeps at most `digits` + 1 leading digits and rounds up: (12345, 2) gives
// 13000, (12345, 1) gives 20000.
qint64 roundUp(qint64 n, int digits);

// Like roundUp, but adds one to the last kept digit only when that digit is 5
// or more, and adds one to a number that needed no division: (12345, 2) gives
// 12000, (95, 2) gives 96, (100, 2) gives 100.
qint64 roundK(qint64 n, int digits);

// The values of the amount axis labels from the bottom up: `count` labels,
// each the roundK of its even share of max, the top one max itself.
QList<qint64> amountAxisValues(qint64 max, int count);
