#include "graph/ChartData.h"

#include <QDate>

#include <algorithm>

#include <utility>

ChartData::ChartData(ChartEntries entries, QList<bool> selectedItems)
    : m_entries(std::move(entries))
    , m_selectedItems(std::move(selectedItems))
{
}

bool ChartData::isSelected(int category) const
{
    return category >= 0 && category < m_selectedItems.size() && m_selectedItems.at(category);
}

qint64 ChartData::calculateTotalOfData(const QMap<int, int> &data) const
{
    qint64 total = 0;
    for (auto it = data.cbegin(); it != data.cend(); ++it) {
        if (isSelected(it.key()))
            total += it.value();
    }
    return total;
}

qint64 ChartData::calculateMaxTotal() const
{
    qint64 best = 0;
    for (const ChartEntry &entry : m_entries)
        best = std::max(best, calculateTotalOfData(entry.data));
    return best;
}

qint64 ChartData::maxAmountOfCategories(int categoryCount) const
{
    qint64 best = 0;
    for (const ChartEntry &entry : m_entries) {
        for (int i = 0; i < categoryCount; ++i) {
            if (isSelected(i))
                best = std::max<qint64>(best, entry.data.value(i, 0));
        }
    }
    return best;
}

qint64 ChartData::amountOf(int row, int category) const
{
    if (row < 0 || row >= m_entries.size())
        return 0;
    return m_entries.at(row).data.value(category, 0);
}

ChartEntries ChartData::monthsEndingAt(int year, int month, int count)
{
    ChartEntries months;
    const QDate target(year, month, 1);
    for (int back = count - 1; back >= 0; --back) {
        const QDate date = target.addMonths(-back);
        months.append({date.year(), date.month(), {}});
    }
    return months;
}

ChartEntries ChartData::monthsOfYear(int year)
{
    ChartEntries months;
    for (int month = 1; month <= 12; ++month)
        months.append({year, month, {}});
    return months;
}
