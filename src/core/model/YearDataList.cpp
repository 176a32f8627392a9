#include "model/YearDataList.h"

YearDataList::YearDataList(int year, const QList<const DataList *> &monthDataLists)
{
    m_year = year;
    for (const DataList *list : monthDataLists) {
        if (list)
            m_dataListArray.append(list->dataListArray());
    }
    calcSumOfData();
    extractList();
}
