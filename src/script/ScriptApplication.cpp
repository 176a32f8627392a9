#include "ScriptApplication.h"

#include "ScriptService.h"

#include "app/KAppController.h"
#include "ledger/KController.h"
#include "model/DataList.h"
#include "script/ScriptCommands.h"
#include "script/ScriptNames.h"


ScriptApplication::ScriptApplication(ScriptService *service)
    : QObject(service)
    , m_service(service)
{
}

bool ScriptApplication::unlocked()
{
    if (m_service->app()->running())
        return true;
    sendErrorReply(ScriptNames::LockedError,
                   tr("Penwick is locked: enter the password in the program first."));
    return false;
}

QStringList ScriptApplication::CategoryNames()
{
    return unlocked() ? m_service->app()->ledger()->categoryList() : QStringList();
}

QStringList ScriptApplication::PaywayNames()
{
    return unlocked() ? m_service->app()->ledger()->paywayList() : QStringList();
}

void ScriptApplication::ShowInputWindow()
{
    if (unlocked())
        m_service->app()->showInputWindow();
}

void ScriptApplication::ShowListWindow()
{
    if (unlocked())
        m_service->app()->showListWindow();
}

void ScriptApplication::ShowGraphWindow()
{
    if (unlocked())
        m_service->app()->showGraphWindow();
}

void ScriptApplication::ShowBalanceListWindow()
{
    if (unlocked())
        m_service->app()->showBalanceListWindow();
}

QVariantMap ScriptApplication::MakeNewPaymentData(const QVariantMap &fields)
{
    if (!unlocked())
        return {};
    const PaymentDataPtr record =
        ScriptCommands::makeNewPaymentData(*m_service->app()->ledger(), plainArguments(fields));
    if (!record) {
        sendErrorReply(ScriptNames::BookingFailedError,
                       tr("The entry could not be booked: its month cannot be changed."));
        return {};
    }
    return ScriptCommands::recordProperties(*record);
}

QList<QDBusObjectPath> ScriptApplication::DataLists()
{
    QList<QDBusObjectPath> paths;
    if (!unlocked())
        return paths;
    for (const auto &list : ScriptCommands::dataLists(*m_service->app()->ledger()))
        paths.append(QDBusObjectPath(m_service->pathForList(*list)));
    return paths;
}

QDBusObjectPath ScriptApplication::pathFor(const std::shared_ptr<DataList> &list, const QString &asked)
{
    if (!list) {
        sendErrorReply(ScriptNames::NoSuchListError, tr("There is no month %1.").arg(asked));
        return {};
    }
    return QDBusObjectPath(m_service->pathForList(*list));
}

QDBusObjectPath ScriptApplication::DataListWithID(int id)
{
    if (!unlocked())
        return {};
    return pathFor(ScriptCommands::valueWithID(*m_service->app()->ledger(), id), QString::number(id));
}

QDBusObjectPath ScriptApplication::DataListWithName(const QString &name)
{
    if (!unlocked())
        return {};
    return pathFor(ScriptCommands::valueWithName(*m_service->app()->ledger(), name), name);
}

QDBusObjectPath ScriptApplication::DataListAtIndex(int index)
{
    if (!unlocked())
        return {};
    return pathFor(ScriptCommands::valueAtIndex(*m_service->app()->ledger(), index),
                   tr("at index %1").arg(index));
}
