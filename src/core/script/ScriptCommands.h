#pragma once

#include "model/ExtractKeyDict.h"
#include "model/PaymentData.h"

#include <QVariantMap>

#include <memory>

class DataList;
class KController;

// What scripts can do with the account book, apart from any transport: the
// object model (month lists as elements of the application, reached by ID,
// name or index; records with their seven properties) and the commands.
// Every operation works on the controller's own lists, so a script and the
// windows see and change the same records.
namespace ScriptCommands {

// The seven script properties of a record ("year", "month", "date",
// "category", "details", "amount", "payway") plus "description", its one-line
// text with the category and payway names.
QVariantMap recordProperties(const PaymentData &record);
QList<QVariantMap> recordProperties(const PaymentArray &records);

// Why a script's request was refused: the error's D-Bus name (one of
// ScriptNames) and a message for the person who ran the script.
struct Refusal
{
    QLatin1StringView name;
    QString message;
};

// A new record from the named fields present, set in the order year, month,
// date, category, details, amount, payway through the record's own setters
// (so a month of 14 files it under December); the rest as a new record has
// them (today, category 0, no details, amount 0, payway 0). It is booked at
// once: added to its month and that month written. Null, with the refusal,
// when the fields do not pass the door checks, when the month could not take
// it (its file could not be read), or when the month could not be written
// (the month is then as it was).
PaymentDataPtr makeNewPaymentData(KController &controller, const QVariantMap &fields,
                                  Refusal *refusal = nullptr);

// The list for a script, or nothing with the refusal: no such month (an
// impossible one, or a year outside 1–9999), or one whose file cannot be
// read (a year list, when any of its months cannot).
std::shared_ptr<DataList> readableList(KController &controller, const std::shared_ptr<DataList> &list,
                                       const QString &asked, Refusal *refusal);

// Every month of the data folder (all are loaded first) with every other
// list in the cache, by year * 100 + month ascending.
QList<std::shared_ptr<DataList>> dataLists(KController &controller);
// Month index + 1 of the year 2004: scripts that count months by index
// address that year, whatever it is now.
std::shared_ptr<DataList> valueAtIndex(KController &controller, int index);
// year * 100 + month, as in 200605.
std::shared_ptr<DataList> valueWithID(KController &controller, int id);
// The ID as text ("200605"), read as a number.
std::shared_ptr<DataList> valueWithName(KController &controller, const QString &name);
// The ID of a list: year * 100 + month.
int uniqueID(const DataList &list);

// The search keys of a script's arguments: "Details" (words), "Date" (days
// such as "1,5,10-12"), "Category" and "Payway" (a number, or numbers in a
// text), "AmountMax" and "AmountMin". Keys not given do not restrict. The
// last of `categoryCount` categories is income, whatever the script says.
ExtractKeyDict extractKeyDictFromScript(const QVariantMap &arguments, int categoryCount);
// Searches the list by those keys.
void extractWithASCommand(DataList &list, const QVariantMap &arguments, int categoryCount);

// Sorts the list's selected records by the argument "sortKey" (a record key
// such as "Amount"): "ascend" smallest first, else "descend" largest first,
// else the reverse of the current order. Without a key nothing changes.
void sortWithASCommand(DataList &list, const QVariantMap &arguments);
// Selects every record again.
void cancelExtractWithASCommand(DataList &list);

} // namespace ScriptCommands
