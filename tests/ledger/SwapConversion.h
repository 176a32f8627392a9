#pragma once

#include "LedgerGenerator.h"
#include "ledger/ListConversion.h"
#include "storage/ListFile.h"

// The change the conversion tests make to a generated folder: the first two
// categories and the first and third payways change places, and the lists
// follow. Every month holds entries of them, so a month shows plainly whether
// it carries the old numbers or the new.
inline ListConversion swapConversion()
{
    QStringList categories = LedgerGenerator::categoryNames();
    categories.swapItemsAt(0, 1);
    QStringList payways = LedgerGenerator::paywayNames();
    payways.swapItemsAt(0, 2);
    ListConversion conversion;
    conversion.categoryMap = {{0, 1}, {1, 0}};
    conversion.paywayMap = {{0, 2}, {2, 0}};
    conversion.lists = {{ListFile::CategoryList, QVariant(categories).toList()},
                        {ListFile::PaywayList, QVariant(payways).toList()}};
    return conversion;
}
