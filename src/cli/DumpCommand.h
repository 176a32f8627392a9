#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>
#include <QStringList>

class MonthDataList;
class TypedStreamReader;

// `penwickctl dump FILE`: shows what an archive holds, for looking into files
// that the application refuses or reads differently than expected.
class DumpCommand
{
    Q_DECLARE_TR_FUNCTIONS(DumpCommand)

public:
    static QString name();
    // One line for the list of commands.
    static QString summary();
    // Runs the command on the arguments that follow its name; answers the
    // exit status.
    static int run(const QStringList &arguments);

    // The whole stream of a valid reader: byte order, system version and the
    // top-level values, objects nested in the values that hold them. An object
    // met again, even inside itself, is given as {"ref": N}, N counting objects
    // from 1 in the order they first appear (as their "object" member says).
    static QJsonObject streamToJson(const TypedStreamReader &reader);
    // The month's memo, if any, as a line starting "# ", then one line per
    // entry: date, category index, details, amount and payway index,
    // tab-separated.
    static QString entriesToText(const MonthDataList &month);
};
