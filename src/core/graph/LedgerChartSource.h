#pragma once

#include "graph/ChartDataSource.h"

class KController;

// Chart sums straight from the month lists, honouring the closing day when
// one is in force.
class LedgerChartSource : public ChartDataSource
{
public:
    explicit LedgerChartSource(KController *controller);

    ChartEntries chartEntries(const ChartEntries &months) override;

private:
    KController *m_controller;
};
