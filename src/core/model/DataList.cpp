#include "model/DataList.h"

#include "model/LedgerController.h"
#include "model/NumberValue.h"

#include <algorithm>
#include <cmath>

DataList::DataList()
{
    calcSumOfData();
    extractAll();
}

DataList::~DataList() = default;

namespace {
void addTruncated(QMap<int, int> &sums, int index, float amount)
{
    int &sum = sums[index];
    sum = truncateToInt(float(sum) + amount);
}
} // namespace

void DataList::calcSumOfData()
{
    // Each amount is a float, but a float sum of a month of them loses
    // cents: totals are kept in double.
    double grandTotal = 0;
    m_categorySum.clear();
    m_paywaySum.clear();
    for (const PaymentDataPtr &record : std::as_const(m_dataListArray)) {
        const float amount = record->amount();
        grandTotal += amount;
        addTruncated(m_categorySum, record->category(), amount);
        addTruncated(m_paywaySum, record->payway(), amount);
    }
    m_grandTotal = grandTotal;
}

double DataList::incomeTotal() const
{
    return double(m_categorySum.value(LedgerController::incomeCategoryIndex(), 0));
}

double DataList::expendTotal() const
{
    return m_grandTotal - incomeTotal();
}

QList<int> DataList::categoryList() const
{
    const LedgerController *controller = LedgerController::installed();
    const qsizetype count = controller ? controller->categoryList().size() : 0;
    QList<int> sums;
    sums.reserve(count);
    for (int i = 0; i < count; ++i)
        sums.append(m_categorySum.value(i, 0));
    return sums;
}

void DataList::setextractKeyDict(const ExtractKeyDict &keys)
{
    m_extractKeyDict = keys;
}

void DataList::extractList()
{
    if (m_extractKeyDict.isEmpty()) {
        extractAll();
        return;
    }
    const int incomeIndex = m_extractKeyDict.incomeNumber.value_or(-1);
    double spending = 0;
    double income = 0;
    m_extractedArray.clear();
    for (const PaymentDataPtr &record : std::as_const(m_dataListArray)) {
        if (!record->isRequestedData(m_extractKeyDict))
            continue;
        m_extractedArray.append(record);
        if (record->category() == incomeIndex)
            income += record->amount();
        else
            spending += record->amount();
    }
    m_extractedTotal = spending;
    m_extractedIncomeTotal = income;
}

void DataList::extractAll()
{
    m_extractedTotal = m_grandTotal;
    m_extractedIncomeTotal = incomeTotal();
    m_extractedArray = m_dataListArray;
}

namespace {

template<typename T>
int threeWay(const T &a, const T &b)
{
    return a < b ? -1 : (b < a ? 1 : 0);
}

// Amounts read from a file may be NaN; ordering NaN before every number keeps
// the comparison a strict weak order, which sorting relies on.
int compareNumbers(double a, double b)
{
    const bool aNan = std::isnan(a);
    const bool bNan = std::isnan(b);
    if (aNan || bNan)
        return threeWay(!aNan, !bNan);
    return threeWay(a, b);
}

// What the order looks at, copied out of a record so that sorting many
// records compares compact values instead of chasing a pointer per look.
struct SortEntry
{
    double primary; // the sort key's value; unused for "Details" and unknown keys
    float amount;
    int category;
    const QString *details;
    qsizetype index; // position before sorting
};

SortEntry sortEntry(const PaymentData &record, PaymentData::Key key, qsizetype index)
{
    using Key = PaymentData::Key;
    double primary = 0;
    switch (key) {
    case Key::Date:
        primary = record.date();
        break;
    case Key::Month:
        primary = record.month();
        break;
    case Key::Year:
        primary = record.year();
        break;
    case Key::Category:
        primary = record.category();
        break;
    case Key::Amount:
        primary = record.amount();
        break;
    case Key::Payway:
        primary = record.payway();
        break;
    case Key::Details:
    case Key::Unknown: // every record answers the same error text: a tie
        break;
    }
    return {primary, record.amount(), record.category(), &record.details(), index};
}

// The natural order (smallest first): the key, then category, amount and
// details.
int compareEntries(const SortEntry &a, const SortEntry &b, PaymentData::Key key)
{
    const int byDetails = key == PaymentData::Key::Details
        ? QString::compare(*a.details, *b.details, Qt::CaseSensitive)
        : 0;
    if (byDetails)
        return threeWay(byDetails, 0);
    if (const int order = compareNumbers(a.primary, b.primary))
        return order;
    if (const int order = threeWay(a.category, b.category))
        return order;
    if (const int order = compareNumbers(a.amount, b.amount))
        return order;
    return threeWay(QString::compare(*a.details, *b.details, Qt::CaseSensitive), 0);
}

} // namespace

int DataList::compareRecords(const PaymentData &a, const PaymentData &b, PaymentData::Key key,
                             bool ascending)
{
    const int factor = ascending ? -1 : 1;
    return factor * compareEntries(sortEntry(a, key, 0), sortEntry(b, key, 0), key);
}

void DataList::sortList(PaymentArray &records, QStringView key, bool ascending)
{
    const PaymentData::Key k = PaymentData::keyFromName(key);
    std::vector<SortEntry> entries;
    entries.reserve(records.size());
    for (qsizetype i = 0; i < records.size(); ++i)
        entries.push_back(sortEntry(*records.at(i), k, i));
    // Equal records keep their order: the earlier position breaks the last tie.
    const int factor = ascending ? -1 : 1;
    const auto before = [k, factor](const SortEntry &a, const SortEntry &b) {
        const int order = factor * compareEntries(a, b, k);
        return order != 0 ? order < 0 : a.index < b.index;
    };
    // A month read from its file, or after one edit, is mostly in order
    // already; finding that out is cheaper than rebuilding the array.
    if (std::is_sorted(entries.begin(), entries.end(), before))
        return;
    std::sort(entries.begin(), entries.end(), before);
    PaymentArray sorted;
    sorted.reserve(records.size());
    for (const SortEntry &entry : entries)
        sorted.append(std::move(records[entry.index]));
    records = std::move(sorted);
}

void DataList::sortwithKey(QStringView key)
{
    if (m_extractedArray.isEmpty())
        return;
    const bool runsSmallestFirst =
        compareRecords(*m_extractedArray.constFirst(), *m_extractedArray.constLast(),
                       PaymentData::keyFromName(key), false)
        < 0;
    sortExtractedArray(key, runsSmallestFirst);
}

void DataList::sortExtractedArray(QStringView key, bool ascending)
{
    sortList(m_extractedArray, key, ascending);
}
