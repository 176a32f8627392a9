#include "storage/MonthFile.h"

#include "model/MonthDataList.h"
#include "storage/TypedStreamDecoder.h"
#include "storage/TypedStreamObject.h"
#include "storage/TypedStreamReader.h"
#include "storage/TypedStreamWriter.h"

namespace MonthFile {

QByteArray encode(const MonthDataList &list)
{
    return TypedStreamWriter::archiveRootObject(
        &list, MonthDataList::classChain(),
        [&list](TypedStreamWriter &writer) { list.encodeWithCoder(writer); });
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
        list = MonthDataList::initWithCoder(decoder);
        if (!list)
            reason = decoder.hasError() ? decoder.errorString()
                                        : QStringLiteral("an entry of the month is not a payment");
    }
    if (!list && error)
        *error = reason;
    return list;
}

} // namespace MonthFile
