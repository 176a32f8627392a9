#pragma once

#include "recurring/Schedule.h"

#include <QJsonArray>
#include <QStringList>

// The schedules as scripts and penwickctl read them: one JSON object each,
// with "id", "details", "category" and "categoryName", "amount" (as typed)
// and "value", "payway" and "paywayName", "rule" (in words), "every"
// ("months", "weeks" or "years"), "interval", "day", "month" (years only),
// "start", "end" and "count" (when set), "mode" ("automatic" or "ask"),
// "last" (when any), "done" and "next" (null when none is left). Dates are
// "yyyy-MM-dd".
namespace ScheduleReport {

QJsonArray json(const QList<Schedule> &schedules, const QStringList &categories,
                const QStringList &payways);

} // namespace ScheduleReport
