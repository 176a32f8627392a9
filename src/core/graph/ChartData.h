#pragma once

#include "graph/ChartEntry.h"

#include <QList>
#include <QtGlobal>

// What a chart scales by: the months it shows and which categories are
// checked. Sums are whole numbers; only checked categories count.
class ChartData
{
public:
    ChartData() = default;
    ChartData(ChartEntries entries, QList<bool> selectedItems);

    const ChartEntries &entries() const { return m_entries; }
    void setEntries(const ChartEntries &entries) { m_entries = entries; }
    const QList<bool> &selectedItems() const { return m_selectedItems; }
    void setSelectedItems(const QList<bool> &selected) { m_selectedItems = selected; }

    bool isSelected(int category) const;
    // The sum of the checked categories of one month.
    qint64 calculateTotalOfData(const QMap<int, int> &data) const;
    // The largest month total, never below 0.
    qint64 calculateMaxTotal() const;
    // The largest single sum of a checked category among the first
    // `categoryCount` categories in any month, never below 0.
    qint64 maxAmountOfCategories(int categoryCount) const;
    // The sum of a category in the entry at `row`, 0 when it has none.
    qint64 amountOf(int row, int category) const;

    // The `count` months up to and including year/month, oldest first.
    static ChartEntries monthsEndingAt(int year, int month, int count);
    // January to December of the year.
    static ChartEntries monthsOfYear(int year);

private:
    ChartEntries m_entries;
    QList<bool> m_selectedItems;
};
