#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QString>

class DataList;
class ScriptHost;
class ScriptDataList;

// The program's scripting service on a D-Bus connection: the application
// object and one object per month list, made when a script first reaches
// that month. Everything is forwarded to the core's script commands and the
// program through the ScriptHost; while the program waits for its password every
// call fails with an error saying so.
class ScriptService : public QObject
{
    Q_OBJECT

public:
    ScriptService(ScriptHost *host, const QDBusConnection &connection, QObject *parent = nullptr);
    ~ScriptService() override;

    // Registers the objects and takes the service name. False, with the
    // reason in errorString(), when the bus refused (another instance on
    // another data folder may own the name).
    bool start();
    QString errorString() const { return m_errorString; }

    ScriptHost *host() const { return m_host; }
    // The object path of a list, registering its object on first use.
    QString pathForList(const DataList &list);

private:
    ScriptHost *m_host;
    QDBusConnection m_connection;
    QHash<int, ScriptDataList *> m_lists;
    QString m_errorString;
};
