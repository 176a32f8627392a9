#include "recurring/ScheduleReport.h"

#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace {
QJsonValue dateValue(const QDate &date)
{
    return date.isValid() ? QJsonValue(date.toString(Qt::ISODate)) : QJsonValue();
}
} // namespace

QJsonArray ScheduleReport::json(const QList<Schedule> &schedules, const QStringList &categories,
                                const QStringList &payways)
{
    QJsonArray array;
    for (const Schedule &s : schedules) {
        QJsonObject object{
            {u"id"_s, s.id},
            {u"details"_s, s.details},
            {u"category"_s, s.category},
            {u"categoryName"_s, categories.value(s.category)},
            {u"amount"_s, s.amount},
            {u"value"_s, s.amountValue()},
            {u"payway"_s, s.payway},
            {u"paywayName"_s, payways.value(s.payway)},
            {u"rule"_s, s.ruleText()},
            {u"every"_s, s.every == Schedule::Every::Weeks   ? u"weeks"_s
                         : s.every == Schedule::Every::Years ? u"years"_s
                                                             : u"months"_s},
            {u"interval"_s, s.interval},
            {u"day"_s, s.day},
            {u"start"_s, dateValue(s.start)},
            {u"mode"_s, s.mode == Schedule::Mode::AskFirst ? u"ask"_s : u"automatic"_s},
            {u"done"_s, s.done},
            {u"next"_s, dateValue(s.nextDate())},
        };
        if (s.every == Schedule::Every::Years)
            object.insert(u"month"_s, s.month);
        if (s.end.isValid())
            object.insert(u"end"_s, dateValue(s.end));
        if (s.count)
            object.insert(u"count"_s, *s.count);
        if (s.last.isValid())
            object.insert(u"last"_s, dateValue(s.last));
        array.append(object);
    }
    return array;
}
