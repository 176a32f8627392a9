#pragma once

#include "ImportResult.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <optional>

// Dates as files write them: "2024-01-15", "15.01.2024", "1/15/24",
// "1/15'04" (an apostrophe before the year puts it in the 2000s),
// "2024年1月15日", "20240115"; a time after the date is ignored. Two-digit
// years below 70 are 20xx, the rest 19xx.
namespace DateReading {

std::optional<QDate> read(QStringView text, DateOrder order);
// The orders under which the most of the non-empty texts are dates (all of
// them, in a well-formed file), in the order of `preference`.
QList<DateOrder> ordersFitting(const QStringList &texts, const QList<DateOrder> &preference);
// Day before month or month before day as the user's locale writes dates,
// year first last: the preference where a file leaves it open.
QList<DateOrder> localPreference();

} // namespace DateReading
