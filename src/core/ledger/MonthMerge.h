#pragma once

#include "model/PaymentData.h"

#include <QList>
#include <QString>

// Brings together two changed versions of one month that grew apart from a
// common one: the month as this program last read or wrote its file (base),
// as it is here now (ours), and as another computer sharing the folder wrote
// it (theirs).
//
// Entries carry no identity of their own, so an entry is known by its
// fields. Per side, base entries found unchanged there are matched first;
// what is left over pairs a removed base entry with an added one that shares
// at least three of its five fields (date, category, details, amount,
// payway) as one entry changed, most alike first; the rest were removed or
// added. Then each base entry takes the side that changed it, and every
// addition of either side is kept: two people may well book the same thing.
//
// Where both sides changed or removed the same base entry and did not arrive
// at the same thing, nothing is chosen: every version that still exists stays
// in the month (ours, theirs, or both) and the case is listed as a conflict.
// The memo is merged the same way, as one text; two different new memos are
// both kept, ours first.
namespace MonthMerge {

struct Content
{
    PaymentArray records;
    QString summary;
};

struct Conflict
{
    PaymentDataPtr base;
    // Null where that side removed the entry.
    PaymentDataPtr ours;
    PaymentDataPtr theirs;
};

struct Result
{
    // Unsorted; base entries come first, then ours' additions, then theirs'.
    PaymentArray records;
    QString summary;
    QList<Conflict> conflicts;
    bool summaryConflict = false;
};

Result merge(const Content &base, const Content &ours, const Content &theirs);

// Every field that is stored equal.
bool sameEntry(const PaymentData &a, const PaymentData &b);

} // namespace MonthMerge
