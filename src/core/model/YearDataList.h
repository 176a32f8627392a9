#pragma once

#include "model/DataList.h"

// The records of a year's months gathered for the charts and the balance
// window. A snapshot: it shares the month lists' records but neither re-sorts
// them nor follows later changes of the months.
class YearDataList : public DataList
{
public:
    YearDataList(int year, const QList<const DataList *> &monthDataLists);
};
