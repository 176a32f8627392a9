#pragma once

#include "model/PaymentData.h"

#include <QStringList>

#include <memory>

class DataList;

// Finding entries by words across every month, for searches that come from
// outside the program. The words match as in the list window's details
// field: split the same way, an entry is found when any of them occurs in its
// details, literally and case-sensitively.
namespace LedgerSearch {

// What a desktop search shows at most.
inline constexpr int MaxResults = 20;

// The entries of the month lists whose details hold any of the words, newest
// first by their date (within a day, last in the list's order first), at most
// `limit`. Year lists are passed over: they repeat their months.
PaymentArray newestWithAnyWord(const QList<std::shared_ptr<DataList>> &lists, QStringView words,
                               int limit = MaxResults);

// One line for the entry as a list would read it: "2025/3/14 Groceries Bakery
// 1,550", the amount written as the list window writes it.
QString entryText(const PaymentData &record);

} // namespace LedgerSearch
