#pragma once

#include <QList>
#include <QMap>

// One month of a chart: its year and month and that month's whole-number sum
// per category index. A chart asks for months by handing over entries whose
// data is still empty; a category without a sum has no amount.
struct ChartEntry
{
    int year = 0;
    int month = 0;
    QMap<int, int> data;

    friend bool operator==(const ChartEntry &, const ChartEntry &) = default;
};

using ChartEntries = QList<ChartEntry>;
