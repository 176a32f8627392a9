#pragma once

#include "graph/ChartEntry.h"

// Where a chart gets the sums of the months it shows.
class ChartDataSource
{
public:
    virtual ~ChartDataSource() = default;

    // The requested months, in the requested order, each with its sums.
    virtual ChartEntries chartEntries(const ChartEntries &months) = 0;
};
