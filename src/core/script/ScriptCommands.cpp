#include "script/ScriptCommands.h"

#include "ledger/KController.h"
#include "model/DataList.h"

using namespace Qt::Literals::StringLiterals;

namespace ScriptCommands {

QVariantMap recordProperties(const PaymentData &record)
{
    QVariantMap properties;
    for (const QString &key : {u"year"_s, u"month"_s, u"date"_s, u"category"_s, u"details"_s,
                               u"amount"_s, u"payway"_s})
        properties.insert(key, record.propertyForKey(key));
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

PaymentDataPtr makeNewPaymentData(KController &controller, const QVariantMap &fields)
{
    auto record = std::make_shared<PaymentData>();
    // In this order: a day is normalised through the year and month as they
    // stand when it is set.
    if (const auto v = fields.value(u"year"_s); v.isValid())
        record->setYear(v.toInt());
    if (const auto v = fields.value(u"month"_s); v.isValid())
        record->setMonth(v.toInt());
    if (const auto v = fields.value(u"date"_s); v.isValid())
        record->setDate(v.toInt());
    if (const auto v = fields.value(u"category"_s); v.isValid())
        record->setCategory(v.toInt());
    if (const auto v = fields.value(u"details"_s); v.isValid())
        record->setDetails(v.toString());
    if (const auto v = fields.value(u"amount"_s); v.isValid())
        record->setAmount(v.toFloat());
    if (const auto v = fields.value(u"payway"_s); v.isValid())
        record->setPayway(v.toInt());
    // Booked, it reports later edits like any other record.
    record->setInitializing(false);
    if (!controller.addData({record}))
        return nullptr;
    return record;
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
    return list.year() * 100 + list.month();
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
