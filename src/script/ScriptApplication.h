#pragma once

#include "ScriptTypes.h"

#include "script/ScriptHost.h"

#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>
#include <QStringList>

#include <memory>

class DataList;
class KController;
class ScriptService;

// The application object of the scripting service; its adaptor is made from
// the interface description org.penwick.Penwick.Application.xml.
class ScriptApplication : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    explicit ScriptApplication(ScriptService *service);

public slots:
    QStringList CategoryNames();
    QStringList PaywayNames();
    void ShowInputWindow();
    void ShowListWindow();
    void ShowGraphWindow();
    void ShowBalanceListWindow();
    QVariantMap MakeNewPaymentData(const QVariantMap &fields);
    QList<QDBusObjectPath> DataLists();
    QDBusObjectPath DataListWithID(int id);
    QDBusObjectPath DataListWithName(const QString &name);
    QDBusObjectPath DataListAtIndex(int index);
    QString ExportCsv(const QString &scope);
    QString ImportFile(const QString &path, const QVariantMap &options);
    QString BudgetOfMonth(const QString &month);
    QString Schedules();

private:
    // The ledger; nothing, after replying with the error, while the password
    // is awaited.
    KController *ledger();
    void show(ScriptHost::Window window);
    QDBusObjectPath pathFor(const std::shared_ptr<DataList> &list, const QString &asked);

    ScriptService *m_service;
};
