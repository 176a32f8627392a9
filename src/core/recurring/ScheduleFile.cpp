#include "recurring/ScheduleFile.h"

#include "storage/PropertyList.h"

#include <QDir>
#include <QVariantMap>

#include <climits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kVersion = 1;

QString dateText(const QDate &date)
{
    return date.toString(Qt::ISODate);
}

QString everyName(Schedule::Every every)
{
    switch (every) {
    case Schedule::Every::Weeks:
        return u"Weeks"_s;
    case Schedule::Every::Years:
        return u"Years"_s;
    case Schedule::Every::Months:
        break;
    }
    return u"Months"_s;
}

QVariantMap toMap(const Schedule &s)
{
    QVariantMap map{
        {u"ID"_s, s.id},
        {u"Category"_s, s.category},
        {u"Details"_s, s.details},
        {u"Amount"_s, s.amount},
        {u"Payway"_s, s.payway},
        {u"Every"_s, everyName(s.every)},
        {u"Interval"_s, s.interval},
        {u"Day"_s, s.day},
        {u"Start"_s, dateText(s.start)},
        {u"Mode"_s, s.mode == Schedule::Mode::AskFirst ? u"AskFirst"_s : u"Automatic"_s},
        {u"Done"_s, s.done},
    };
    if (s.every == Schedule::Every::Years)
        map.insert(u"Month"_s, s.month);
    if (s.end.isValid())
        map.insert(u"End"_s, dateText(s.end));
    if (s.count)
        map.insert(u"Count"_s, *s.count);
    if (s.last.isValid())
        map.insert(u"Last"_s, dateText(s.last));
    return map;
}

// Reads one schedule's fields, remembering the first that is wrong.
class FieldReader
{
public:
    explicit FieldReader(const QVariantMap &map) : m_map(map) {}

    int number(const QString &key, int fallback = 0)
    {
        const QVariant value = m_map.value(key);
        if (!value.isValid())
            return fallback;
        if (value.typeId() != QMetaType::LongLong || value.toLongLong() < INT_MIN
            || value.toLongLong() > INT_MAX)
            fail(key);
        return int(value.toLongLong());
    }
    QString text(const QString &key)
    {
        const QVariant value = m_map.value(key);
        if (value.isValid() && value.typeId() != QMetaType::QString)
            fail(key);
        return value.toString();
    }
    // Invalid when absent; a text that is no date is wrong.
    QDate date(const QString &key)
    {
        const QString value = text(key);
        const QDate date = QDate::fromString(value, Qt::ISODate);
        if (!value.isEmpty() && !date.isValid())
            fail(key);
        return date;
    }
    void fail(const QString &key)
    {
        if (m_wrong.isEmpty())
            m_wrong = key;
    }
    const QString &wrong() const { return m_wrong; }

private:
    const QVariantMap &m_map;
    QString m_wrong;
};

std::optional<Schedule> fromMap(const QVariantMap &map, QString *wrongKey)
{
    FieldReader read(map);
    Schedule s;
    s.id = read.text(u"ID"_s);
    s.category = read.number(u"Category"_s);
    s.details = read.text(u"Details"_s);
    s.amount = read.text(u"Amount"_s);
    s.payway = read.number(u"Payway"_s);
    const QString every = read.text(u"Every"_s);
    if (every == "Weeks"_L1)
        s.every = Schedule::Every::Weeks;
    else if (every == "Years"_L1)
        s.every = Schedule::Every::Years;
    else if (every != "Months"_L1)
        read.fail(u"Every"_s);
    s.interval = read.number(u"Interval"_s, 1);
    s.day = read.number(u"Day"_s, 1);
    s.month = read.number(u"Month"_s, 1);
    s.start = read.date(u"Start"_s);
    s.end = read.date(u"End"_s);
    if (map.contains(u"Count"_s))
        s.count = read.number(u"Count"_s);
    const QString mode = read.text(u"Mode"_s);
    if (mode == "AskFirst"_L1)
        s.mode = Schedule::Mode::AskFirst;
    else if (mode != "Automatic"_L1)
        read.fail(u"Mode"_s);
    s.last = read.date(u"Last"_s);
    s.done = read.number(u"Done"_s);
    if (s.id.isEmpty())
        read.fail(u"ID"_s);
    if (!s.start.isValid())
        read.fail(u"Start"_s);
    *wrongKey = read.wrong();
    return read.wrong().isEmpty() ? std::optional<Schedule>(s) : std::nullopt;
}

} // namespace

QString ScheduleFile::path(const QString &folder)
{
    return QDir(folder).filePath(FileName);
}

QByteArray ScheduleFile::encode(const QList<Schedule> &schedules)
{
    QVariantList list;
    list.reserve(schedules.size());
    for (const Schedule &s : schedules)
        list.append(toMap(s));
    return PropertyList::toXml(QVariantMap{{u"Version"_s, kVersion}, {u"Schedules"_s, list}});
}

std::optional<QList<Schedule>> ScheduleFile::decode(const QByteArray &bytes, QString *error)
{
    auto fail = [error](const QString &reason) {
        if (error)
            *error = reason;
        return std::nullopt;
    };
    QString reason;
    const QVariant root = PropertyList::fromData(bytes, &reason);
    if (!root.isValid())
        return fail(reason);
    const QVariantMap dictionary = root.toMap();
    if (root.typeId() != QMetaType::QVariantMap
        || dictionary.value(u"Schedules"_s).typeId() != QMetaType::QVariantList)
        return fail(tr("It holds no list of schedules."));
    if (dictionary.value(u"Version"_s).toLongLong() > kVersion)
        return fail(tr("It was written by a newer Penwick."));
    QList<Schedule> schedules;
    const QVariantList list = dictionary.value(u"Schedules"_s).toList();
    for (qsizetype i = 0; i < list.size(); ++i) {
        QString wrongKey = u"Schedules"_s;
        const auto schedule = list.at(i).typeId() == QMetaType::QVariantMap
            ? fromMap(list.at(i).toMap(), &wrongKey)
            : std::nullopt;
        if (!schedule)
            return fail(tr("Schedule %1 has a wrong \"%2\".").arg(i + 1).arg(wrongKey));
        schedules.append(*schedule);
    }
    return schedules;
}

std::optional<QByteArray> ScheduleFile::renumber(const QByteArray &bytes,
                                                 const ListConversion &conversion, QString *error)
{
    std::optional<QList<Schedule>> schedules = decode(bytes, error);
    if (!schedules)
        return std::nullopt;
    for (Schedule &s : *schedules) {
        s.category = conversion.categoryMap.value(s.category, s.category);
        s.payway = conversion.paywayMap.value(s.payway, s.payway);
    }
    return encode(*schedules);
}
