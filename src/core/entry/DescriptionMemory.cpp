#include "entry/DescriptionMemory.h"

#include "model/PaymentData.h"
#include "settings/Settings.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString DetailsKey = u"details"_s;
const QString CategoryKey = u"category"_s;
const QString AmountKey = u"amount"_s;
const QString CountKey = u"count"_s;

QList<DescriptionMemory::Record> recordsFrom(const QVariantList &values)
{
    QList<DescriptionMemory::Record> records;
    records.reserve(values.size());
    for (const QVariant &value : values)
        records.append(DescriptionMemory::Record::fromVariant(value));
    return records;
}

QVariantList variantsFrom(const QList<DescriptionMemory::Record> &records)
{
    QVariantList values;
    values.reserve(records.size());
    for (const DescriptionMemory::Record &record : records)
        values.append(record.toVariantMap());
    return values;
}

} // namespace

QVariantMap DescriptionMemory::Record::toVariantMap() const
{
    return {{DetailsKey, details},
            {CategoryKey, category},
            {AmountKey, double(amount)},
            {CountKey, count}};
}

DescriptionMemory::Record DescriptionMemory::Record::fromVariant(const QVariant &value)
{
    const QVariantMap map = value.toMap();
    Record record;
    record.details = map.value(DetailsKey).toString();
    record.category = map.value(CategoryKey, -1).toInt();
    record.amount = map.value(AmountKey).toFloat();
    record.count = map.value(CountKey).toInt();
    return record;
}

void DescriptionMemory::readRecentItemsFromDefault()
{
    const Settings settings;
    m_recent = recordsFrom(settings.recentDescriptions());
    m_common = recordsFrom(settings.commonDescriptions());
    m_database.clear();
    const QVariantMap database = settings.commonDescriptionsDB();
    for (auto it = database.cbegin(); it != database.cend(); ++it)
        m_database.insert(it.key(), Record::fromVariant(it.value()));
}

void DescriptionMemory::writeToDefault() const
{
    QVariantMap database;
    for (auto it = m_database.cbegin(); it != m_database.cend(); ++it)
        database.insert(it.key(), it.value().toVariantMap());
    Settings settings;
    settings.setRecentDescriptions(variantsFrom(m_recent));
    settings.setCommonDescriptions(variantsFrom(m_common));
    settings.setCommonDescriptionsDB(database);
}

void DescriptionMemory::addNewDescription(const PaymentData &record)
{
    if (record.details().isEmpty())
        return;
    Record remembered{record.details(), record.category(), record.amount(), 0};
    // The common step sets the count, which the recent list then carries too.
    addNewDescriptionToCommon(remembered);
    addNewDescriptionToRecent(remembered);
}

void DescriptionMemory::addNewDescriptionToCommon(Record &record)
{
    const auto known = m_database.constFind(record.details);
    record.count = (known == m_database.cend() ? 0 : known->count) + 1;
    m_database.insert(record.details, record);

    if (m_common.isEmpty()) {
        m_common.append(record);
        return;
    }
    // Ahead of the first entry booked as often or less (so ties go to the
    // latest booking), and the description's older entry leaves the list.
    // The walk advances past a removal, as it always has: the stored lists
    // depend on that order.
    bool inserted = false;
    for (qsizetype i = 0; i < m_common.size(); ++i) {
        const Record entry = m_common.at(i);
        if (!inserted && record.count >= entry.count) {
            m_common.insert(i, record);
            inserted = true;
        }
        if (entry.details == record.details)
            m_common.removeAll(entry);
    }
    if (!inserted && m_common.size() < maxOfCommonDescriptions)
        m_common.append(record);
    while (m_common.size() > maxOfCommonDescriptions)
        m_common.removeLast();
}

void DescriptionMemory::addNewDescriptionToRecent(const Record &record)
{
    // A description already offered among the common ones is not offered
    // twice.
    if (isCommonDescriptionContainsData(record))
        return;
    for (qsizetype i = 0; i < m_recent.size(); ++i) {
        if (m_recent.at(i).details == record.details)
            m_recent.removeAll(Record(m_recent.at(i)));
    }
    m_recent.prepend(record);
    while (m_recent.size() > maxOfRecentDescriptions)
        m_recent.removeLast();
}

bool DescriptionMemory::isCommonDescriptionContainsData(const Record &record) const
{
    return std::any_of(m_common.cbegin(), m_common.cend(),
                       [&record](const Record &entry) { return entry.details == record.details; });
}

int DescriptionMemory::numberOfItems() const
{
    // A stored common list longer than this memory ever makes it offers only
    // its first five.
    const qsizetype common = m_common.size() > maxOfCommonDescriptions ? 5 : m_common.size();
    return int(common + m_recent.size());
}

DescriptionMemory::Record DescriptionMemory::itemAt(int index) const
{
    if (index < 0 || index >= numberOfItems())
        return {};
    if (index < m_common.size())
        return m_common.at(index);
    return m_recent.at(index - m_common.size());
}
