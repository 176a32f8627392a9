#include "search/LedgerSearch.h"

#include "model/DataList.h"
#include "model/NumberValue.h"
#include "search/StringUtility.h"

#include <algorithm>

namespace LedgerSearch {

PaymentArray newestWithAnyWord(const QList<std::shared_ptr<DataList>> &lists, QStringView words,
                               int limit)
{
    const QStringList keys = separateStringKeyToArray(words);
    QList<const DataList *> months;
    for (const auto &list : lists) {
        if (list->month() != 0)
            months.append(list.get());
    }
    std::sort(months.begin(), months.end(), [](const DataList *a, const DataList *b) {
        return std::pair(a->year(), a->month()) > std::pair(b->year(), b->month());
    });

    PaymentArray found;
    for (const DataList *month : months) {
        if (found.size() >= limit)
            break;
        // Every later month is older, so the newest of this one are next.
        PaymentArray hits;
        const PaymentArray &records = month->dataListArray();
        for (auto it = records.crbegin(); it != records.crend(); ++it) {
            if (stringHasAnyKey((*it)->details(), keys))
                hits.append(*it);
        }
        std::stable_sort(hits.begin(), hits.end(), [](const PaymentDataPtr &a, const PaymentDataPtr &b) {
            return a->date() > b->date();
        });
        found.append(hits.first(std::min(hits.size(), limit - found.size())));
    }
    return found;
}

QString entryText(const PaymentData &record)
{
    QStringList pieces{QString::number(record.year()) + u'/' + QString::number(record.month())
                           + u'/' + QString::number(record.date()),
                       record.categoryAsName(), record.details(), amountText(record.amount())};
    pieces.removeAll(QString());
    return pieces.join(u' ');
}

} // namespace LedgerSearch
