#include "storage/MonthFile.h"

#include "model/MonthDataList.h"
#include "storage/TypedStreamClass.h"
#include "storage/TypedStreamDecoder.h"
#include "storage/TypedStreamObject.h"
#include "storage/TypedStreamReader.h"
#include "storage/TypedStreamWriter.h"

namespace MonthFile {

namespace {

// The classes as the Mac archiver names them, with their versions.
const TypedStreamClassChain &monthClasses()
{
    static const TypedStreamClassChain chain{
        {"MonthDataList", 2}, {"DataList", 1}, {"NSObject", 0}};
    return chain;
}

const TypedStreamClassChain &recordClasses()
{
    static const TypedStreamClassChain chain{{"PaymentData", 2}, {"NSObject", 0}};
    return chain;
}

// A record: year, month, day and category as "i", details as a string
// object, amount as "f" (as "l" in version 1 archives), payway as "i".
void encodeRecord(TypedStreamWriter &writer, const PaymentData &record)
{
    writer.encodeInt(record.year());
    writer.encodeInt(record.month());
    writer.encodeInt(record.date());
    writer.encodeInt(record.category());
    writer.encodeString(record.details());
    writer.encodeFloat(record.amount());
    writer.encodeInt(record.payway());
}

// Null when the values do not fit; the decoder then holds the reason.
// Version 1 records stored whole amounts.
PaymentDataPtr decodeRecord(TypedStreamDecoder &decoder, bool wholeAmount)
{
    const int year = decoder.decodeInt();
    const int month = decoder.decodeInt();
    const int date = decoder.decodeInt();
    const int category = decoder.decodeInt();
    const QString details = decoder.decodeString();
    const float amount = wholeAmount ? float(decoder.decodeLong()) : decoder.decodeFloat();
    const int payway = decoder.decodeInt();
    if (!decoder.finish())
        return nullptr;
    return std::make_shared<PaymentData>(year, month, date, category, details, amount, payway);
}

// A month: year and month as "i", the records as an array object, the memo
// as a string object (absent in version 1).
void encodeMonth(TypedStreamWriter &writer, const MonthDataList &list)
{
    writer.encodeInt(list.year());
    writer.encodeInt(list.month());
    const PaymentArray &records = list.dataListArray();
    writer.encodeArray(&records, TypedStreamWriter::ArrayClass::NSMutableArray, records.size(),
                       [&records](TypedStreamWriter &w, qsizetype i) {
                           const PaymentData &record = *records.at(i);
                           w.encodeObject(&record, recordClasses(), [&record](TypedStreamWriter &rw) {
                               encodeRecord(rw, record);
                           });
                       });
    writer.encodeString(list.summary());
}

// The list an archive holds, sorted and summed, clean; records of another
// month are still in it (the month store moves them once the list is
// cached). Null when the values do not fit; the decoder holds the reason.
std::shared_ptr<MonthDataList> decodeMonth(TypedStreamDecoder &decoder)
{
    const int year = decoder.decodeInt();
    const int month = decoder.decodeInt();
    const QList<const TypedStreamObject *> elements = decoder.decodeArray();
    PaymentArray records;
    records.reserve(elements.size());
    const bool wholeAmounts = decoder.versionForClassName("PaymentData").value_or(2) < 2;
    for (const TypedStreamObject *element : elements) {
        if (!element->inherits("PaymentData")) {
            decoder.finish(); // keeps the first error, if any
            return nullptr;
        }
        TypedStreamDecoder recordDecoder = decoder.decoderFor(element);
        PaymentDataPtr record = decodeRecord(recordDecoder, wholeAmounts);
        if (!record)
            return nullptr;
        records.append(std::move(record));
    }
    QString summary;
    // Version 1 lists end after the records.
    if (decoder.versionForClassName("MonthDataList").value_or(2) >= 2 && !decoder.atEnd())
        summary = decoder.decodeString();
    if (!decoder.finish())
        return nullptr;

    auto list = std::make_shared<MonthDataList>(year, month);
    DataList::sortList(records, u"Date");
    list->setDataListArray(records);
    list->setSummary(summary);
    list->calcSumOfData();
    list->extractAll();
    return list;
}

} // namespace

QByteArray encode(const MonthDataList &list)
{
    return TypedStreamWriter::archiveRootObject(
        &list, monthClasses(), [&list](TypedStreamWriter &writer) { encodeMonth(writer, list); });
}

std::shared_ptr<MonthDataList> decode(const QByteArray &data, QString *error)
{
    const TypedStreamReader reader(data);
    TypedStreamDecoder top(reader);
    const TypedStreamObject *root = top.decodeObject();
    std::shared_ptr<MonthDataList> list;
    QString reason;
    if (top.hasError()) {
        reason = top.errorString();
    } else if (!root || !root->inherits("MonthDataList")) {
        reason = QStringLiteral("the file does not hold a month of entries");
    } else {
        TypedStreamDecoder decoder = top.decoderFor(root);
        list = decodeMonth(decoder);
        if (!list)
            reason = decoder.hasError() ? decoder.errorString()
                                        : QStringLiteral("an entry of the month is not a payment");
    }
    if (!list && error)
        *error = reason;
    return list;
}

} // namespace MonthFile
