#include "script/ScriptCommands.h"

#include "entry/EntryCheck.h"
#include "ledger/KController.h"
#include "model/DataList.h"
#include "model/MonthKey.h"
#include "model/NumberValue.h"
#include "script/ScriptNames.h"
#include "search/StringUtility.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace ScriptCommands {

namespace {
void refuse(Refusal *refusal, Refusal reason)
{
    if (refusal)
        *refusal = std::move(reason);
}
} // namespace

QVariantMap recordProperties(const PaymentData &record)
{
    QVariantMap properties;
    for (const QString &key : {u"year"_s, u"month"_s, u"date"_s, u"category"_s, u"details"_s,
                               u"payway"_s})
        properties.insert(key, record.propertyForKey(key));
    // Scripts take numbers as doubles; the amount as it was typed, not with
    // the digits a float gains on the way.
    properties.insert(u"amount"_s, shortestDouble(record.amount()));
    properties.insert(u"description"_s, record.descriptionForScript());
    return properties;
}

QList<QVariantMap> recordProperties(const PaymentArray &records)
{
    QList<QVariantMap> list;
    list.reserve(records.size());
    for (const PaymentDataPtr &record : records)
        list.append(recordProperties(*record));
    return list;
}

PaymentDataPtr makeNewPaymentData(KController &controller, const QVariantMap &fields,
                                  Refusal *refusal)
{
    if (const auto problem = EntryCheck::newEntryProblem(
            fields, int(controller.categoryList().size()), int(controller.paywayList().size()))) {
        refuse(refusal, {ScriptNames::InvalidArgsError, *problem});
        return nullptr;
    }
    auto record = std::make_shared<PaymentData>();
    // In this order: a day is normalised through the year and month as they
    // stand when it is set.
    if (const auto v = fields.value(u"year"_s); v.isValid())
        record->setYear(integerValueOf(v));
    if (const auto v = fields.value(u"month"_s); v.isValid())
        record->setMonth(integerValueOf(v));
    if (const auto v = fields.value(u"date"_s); v.isValid())
        record->setDate(integerValueOf(v));
    if (const auto v = fields.value(u"category"_s); v.isValid())
        record->setCategory(integerValueOf(v));
    if (const auto v = fields.value(u"details"_s); v.isValid())
        record->setDetails(v.toString());
    if (const auto v = fields.value(u"amount"_s); v.isValid())
        record->setAmount(floatValueOf(v));
    if (const auto v = fields.value(u"payway"_s); v.isValid())
        record->setPayway(integerValueOf(v));
    // Booked, it reports later edits like any other record.
    record->setInitializing(false);
    if (controller.unreadableReason(record->year(), record->month())) {
        refuse(refusal, {ScriptNames::BookingFailedError,
                    QCoreApplication::translate("ScriptCommands",
                                                "The entry could not be booked: the file of its "
                                                "month cannot be read.")});
        return nullptr;
    }
    const KController::ChangeScope change(
        &controller, QCoreApplication::translate("ScriptCommands", "Booking by a Script"));
    if (QString reason; !controller.addData({record}, &reason)) {
        refuse(refusal, {ScriptNames::NotSavedError,
                    QCoreApplication::translate("ScriptCommands",
                                                "The entry was not booked: %1").arg(reason)});
        return nullptr;
    }
    return record;
}

std::shared_ptr<DataList> readableList(KController &controller, const std::shared_ptr<DataList> &list,
                                       const QString &asked, Refusal *refusal)
{
    if (!list) {
        refuse(refusal, {ScriptNames::NoSuchListError,
                    QCoreApplication::translate("ScriptCommands", "There is no month %1.").arg(asked)});
        return nullptr;
    }
    const int first = list->month() == 0 ? 1 : list->month();
    const int last = list->month() == 0 ? 12 : list->month();
    for (int month = first; month <= last; ++month) {
        if (const auto reason = controller.unreadableReason(list->year(), month)) {
            refuse(refusal, {ScriptNames::UnreadableError,
                        QCoreApplication::translate("ScriptCommands",
                                                    "The entries of %1/%2 cannot be read: %3")
                            .arg(month)
                            .arg(list->year())
                            .arg(*reason)});
            return nullptr;
        }
    }
    return list;
}

QList<std::shared_ptr<DataList>> dataLists(KController &controller)
{
    controller.readAllData();
    return controller.cachedLists();
}

std::shared_ptr<DataList> valueAtIndex(KController &controller, int index)
{
    return controller.listForYear(2004, index + 1);
}

std::shared_ptr<DataList> valueWithID(KController &controller, int id)
{
    return controller.listForYear(id / 100, id % 100);
}

std::shared_ptr<DataList> valueWithName(KController &controller, const QString &name)
{
    const double number = name.toDouble();
    return controller.listForYear(int(number / 100), int(number) % 100);
}

int uniqueID(const DataList &list)
{
    return MonthKey::of(list.year(), list.month());
}

namespace {
// A number is one index; a text holds indices separated like keywords; a
// list holds them one by one.
QList<int> indicesOf(const QVariant &value)
{
    QList<int> indices;
    if (value.typeId() == QMetaType::QString) {
        for (const QString &word : separateStringKeyToArray(value.toString()))
            indices.append(integerValueOf(QStringView(word)));
    } else if (value.typeId() == QMetaType::QVariantList) {
        for (const QVariant &item : value.toList())
            indices.append(integerValueOf(item));
    } else {
        indices.append(integerValueOf(value));
    }
    return indices;
}
} // namespace

ExtractKeyDict extractKeyDictFromScript(const QVariantMap &arguments, int categoryCount)
{
    ExtractKeyDict keys;
    keys.incomeNumber = categoryCount - 1;
    if (const auto v = arguments.value(u"Details"_s); v.isValid())
        keys.details = separateStringKeyToArray(v.toString());
    if (const auto v = arguments.value(u"Date"_s); v.isValid())
        keys.date = separateDateKeyToArray(v.toString());
    if (const auto v = arguments.value(u"Payway"_s); v.isValid())
        keys.payway = indicesOf(v);
    if (const auto v = arguments.value(u"Category"_s); v.isValid())
        keys.category = indicesOf(v);
    if (const auto v = arguments.value(u"AmountMax"_s); v.isValid())
        keys.amountMax = floatValueOf(v);
    if (const auto v = arguments.value(u"AmountMin"_s); v.isValid())
        keys.amountMin = floatValueOf(v);
    return keys;
}

void extractWithASCommand(DataList &list, const QVariantMap &arguments, int categoryCount)
{
    list.setextractKeyDict(extractKeyDictFromScript(arguments, categoryCount));
    list.extractList();
}

void sortWithASCommand(DataList &list, const QVariantMap &arguments)
{
    const QString key = arguments.value(u"sortKey"_s).toString();
    if (key.isEmpty())
        return;
    // The sort's flag reads the other way round: true puts the largest first.
    if (arguments.contains(u"ascend"_s))
        list.sortExtractedArray(key, false);
    else if (arguments.contains(u"descend"_s))
        list.sortExtractedArray(key, true);
    else
        list.sortwithKey(key);
}

void cancelExtractWithASCommand(DataList &list)
{
    list.extractAll();
}

} // namespace ScriptCommands
