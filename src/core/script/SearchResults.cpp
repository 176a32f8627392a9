#include "script/SearchResults.h"

#include "ledger/KController.h"
#include "model/DataList.h"
#include "model/MonthKey.h"
#include "search/LedgerSearch.h"

#include <algorithm>

namespace SearchResults {

namespace {

quint16 fieldCheck(const PaymentData &record)
{
    return qChecksum(record.description().toUtf8());
}

int monthID(const PaymentData &record)
{
    return MonthKey::of(record.year(), record.month());
}

} // namespace

QStringList resultIDs(KController &controller, QStringView words)
{
    controller.readAllData();
    QStringList ids;
    for (const PaymentDataPtr &record : LedgerSearch::newestWithAnyWord(controller.cachedLists(), words))
        ids.append(resultID(controller, *record));
    return ids;
}

QString resultID(KController &controller, const PaymentData &record)
{
    const auto month = controller.listForYear(record.year(), record.month());
    const PaymentArray records = month ? month->dataListArray() : PaymentArray();
    const auto place = std::find_if(records.cbegin(), records.cend(),
                                    [&record](const PaymentDataPtr &r) { return r.get() == &record; });
    return QStringLiteral("%1:%2:%3")
        .arg(monthID(record))
        .arg(place - records.cbegin())
        .arg(fieldCheck(record), 4, 16, QLatin1Char('0'));
}

PaymentDataPtr entryForResultID(KController &controller, QStringView id)
{
    const QList<QStringView> parts = id.split(u':');
    if (parts.size() != 3)
        return nullptr;
    bool valid[3] = {};
    const int month = parts.at(0).toInt(&valid[0]);
    const qsizetype place = parts.at(1).toInt(&valid[1]);
    const uint check = parts.at(2).toUInt(&valid[2], 16);
    if (!valid[0] || !valid[1] || !valid[2] || month % 100 < 1 || month % 100 > 12)
        return nullptr;
    const auto list = controller.listForYear(month / 100, month % 100);
    if (!list)
        return nullptr;
    const PaymentArray &records = list->dataListArray();
    const auto unchanged = [check](const PaymentDataPtr &r) { return fieldCheck(*r) == check; };
    if (place >= 0 && place < records.size() && unchanged(records.at(place)))
        return records.at(place);
    const auto moved = std::find_if(records.cbegin(), records.cend(), unchanged);
    return moved != records.cend() ? *moved : nullptr;
}

} // namespace SearchResults
