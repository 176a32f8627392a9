#include "ScriptService.h"

#include "ScriptApplication.h"
#include "ScriptDataList.h"
#include "applicationadaptor.h"
#include "datalistadaptor.h"

#include "model/DataList.h"
#include "script/ScriptCommands.h"
#include "script/ScriptNames.h"

#include <QDBusConnectionInterface>
#include <QDBusMetaType>

ScriptService::ScriptService(ScriptHost *host, const QDBusConnection &connection, QObject *parent)
    : QObject(parent)
    , m_host(host)
    , m_connection(connection)
{
    qDBusRegisterMetaType<QVariantMapList>();
}

ScriptService::~ScriptService()
{
    if (m_connection.isConnected()) {
        m_connection.unregisterObject(ScriptNames::ApplicationPath, QDBusConnection::UnregisterTree);
        m_connection.unregisterService(ScriptNames::Service);
    }
}

bool ScriptService::start()
{
    if (!m_connection.isConnected()) {
        m_errorString = tr("There is no session bus: %1").arg(m_connection.lastError().message());
        return false;
    }
    auto *application = new ScriptApplication(this);
    new ApplicationAdaptor(application);
    if (!m_connection.registerObject(ScriptNames::ApplicationPath, application)) {
        m_errorString = tr("The scripting object could not be registered.");
        return false;
    }
    if (!m_connection.registerService(ScriptNames::Service)) {
        m_errorString = tr("Another program already answers scripts as %1.").arg(ScriptNames::Service);
        return false;
    }
    return true;
}

QString ScriptService::pathForList(const DataList &list)
{
    const int id = ScriptCommands::uniqueID(list);
    const QString path = ScriptNames::DataListsPath + QString::number(id);
    if (!m_lists.contains(id)) {
        auto *object = new ScriptDataList(this, id);
        new DataListAdaptor(object);
        m_connection.registerObject(path, object);
        m_lists.insert(id, object);
    }
    return path;
}
