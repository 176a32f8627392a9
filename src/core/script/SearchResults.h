#pragma once

#include "model/PaymentData.h"

#include <QStringList>

class KController;

// The desktop's search over the account book, apart from any transport: the
// entries found for some words, each under a result ID the desktop hands
// back later to show it or to open it.
//
// An ID names the entry's month, its place in that month and a check of its
// fields ("200605:17:3fa2"), so that an entry moved within its month by an
// edit is still found, and one changed or deleted meanwhile is not mistaken
// for another.
namespace SearchResults {

// Every month of the data folder is loaded on the first search.
QStringList resultIDs(KController &controller, QStringView words);
QString resultID(KController &controller, const PaymentData &record);
// The entry an ID names, when it is still in its month as it was.
PaymentDataPtr entryForResultID(KController &controller, QStringView id);

} // namespace SearchResults
