#pragma once

#include <QList>
#include <QMetaType>
#include <QVariantMap>

class QDBusArgument;

// Records travel as a list of property maps (D-Bus "aa{sv}"); the generated
// adaptors need the type under one name without a comma.
using QVariantMapList = QList<QVariantMap>;

// A script's named arguments as the core takes them: arrays inside "a{sv}"
// arrive still marshalled and become plain lists.
QVariantMap plainArguments(const QVariantMap &arguments);

// What the desktop's runner is given for one entry found (D-Bus
// "(sssida{sv})"), and for an action it may offer on matches ("(sss)").
struct RunnerMatch
{
    QString id;
    QString text;
    QString iconName;
    // How the desktop ranks the kind of match: 30 is a possible match.
    int type = 30;
    double relevance = 0;
    QVariantMap properties;
};
using RunnerMatches = QList<RunnerMatch>;

struct RunnerAction
{
    QString id;
    QString text;
    QString iconName;
};
using RunnerActions = QList<RunnerAction>;

QDBusArgument &operator<<(QDBusArgument &argument, const RunnerMatch &match);
const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerMatch &match);
QDBusArgument &operator<<(QDBusArgument &argument, const RunnerAction &action);
const QDBusArgument &operator>>(const QDBusArgument &argument, RunnerAction &action);

Q_DECLARE_METATYPE(RunnerMatch)
Q_DECLARE_METATYPE(RunnerAction)
