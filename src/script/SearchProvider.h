#pragma once

#include "ScriptTypes.h"

#include <QObject>
#include <QStringList>

class SearchService;

// The GNOME search provider; its adaptor is made from
// org.gnome.Shell.SearchProvider2.xml.
class SearchProvider : public QObject
{
    Q_OBJECT

public:
    explicit SearchProvider(SearchService *service);

public slots:
    QStringList GetInitialResultSet(const QStringList &terms);
    QStringList GetSubsearchResultSet(const QStringList &previousResults, const QStringList &terms);
    QVariantMapList GetResultMetas(const QStringList &identifiers);
    void ActivateResult(const QString &identifier, const QStringList &terms, uint timestamp);
    void LaunchSearch(const QStringList &terms, uint timestamp);

private:
    SearchService *m_service;
};
