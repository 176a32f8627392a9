#include "graph/LedgerChartSource.h"

#include "ledger/KController.h"
#include "model/DataList.h"

LedgerChartSource::LedgerChartSource(KController *controller)
    : m_controller(controller)
{
}

ChartEntries LedgerChartSource::chartEntries(const ChartEntries &months)
{
    ChartEntries entries;
    entries.reserve(months.size());
    for (const ChartEntry &request : months) {
        ChartEntry entry{request.year, request.month, {}};
        if (m_controller) {
            if (const auto list = m_controller->listForYear(request.year, request.month, true))
                entry.data = list->categorySum();
        }
        entries.append(entry);
    }
    return entries;
}
