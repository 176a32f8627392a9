#pragma once

#include "ledger/ListConversion.h"
#include "recurring/Schedule.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLatin1StringView>
#include <QList>
#include <QString>

#include <optional>

// The schedules of a data folder, kept in the folder's own property list
// "Schedules.plist" beside the months and the lists: they belong to the
// household's data and travel with it. A dictionary whose "Schedules" is an
// array of one dictionary per schedule; dates are written "yyyy-MM-dd".
class ScheduleFile
{
    Q_DECLARE_TR_FUNCTIONS(ScheduleFile)

public:
    static constexpr QLatin1StringView FileName{"Schedules.plist"};

    static QString path(const QString &folder);
    static QByteArray encode(const QList<Schedule> &schedules);
    // Nothing, with the reason, when the bytes are not a schedules file.
    static std::optional<QList<Schedule>> decode(const QByteArray &bytes, QString *error = nullptr);
    // The file with its category and payway numbers renumbered.
    static std::optional<QByteArray> renumber(const QByteArray &bytes,
                                              const ListConversion &conversion,
                                              QString *error = nullptr);
};
