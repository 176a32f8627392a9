#pragma once

#include "ScriptTypes.h"

#include <QDBusContext>
#include <QObject>

#include <memory>

class DataList;
class ScriptService;

// One month list as a scripting object; its adaptor is made from
// org.penwick.Penwick.DataList.xml. It keeps only the month's ID and asks
// the controller for the list at every call, so it never holds on to a list
// the controller has let go of (after a change of data folder, say).
class ScriptDataList : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_PROPERTY(int Year READ Year)
    Q_PROPERTY(int Month READ Month)
    Q_PROPERTY(int UniqueID READ UniqueID)
    Q_PROPERTY(QString Name READ Name)

public:
    ScriptDataList(ScriptService *service, int uniqueID);

    int Year() const { return m_uniqueID / 100; }
    int Month() const { return m_uniqueID % 100; }
    int UniqueID() const { return m_uniqueID; }
    QString Name() const { return QString::number(m_uniqueID); }

public slots:
    QVariantMapList Records();
    QVariantMapList ExtractedRecords();
    QVariantMapList ExtractWithASCommand(const QVariantMap &keys);
    QVariantMapList SortWithASCommand(const QVariantMap &arguments);
    QVariantMapList CancelExtractWithASCommand();

private:
    // The list, or null after replying with the error that says why not.
    std::shared_ptr<DataList> list();

    ScriptService *m_service;
    int m_uniqueID;
};
