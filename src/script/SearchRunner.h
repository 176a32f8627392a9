#pragma once

#include "ScriptTypes.h"

#include <QObject>

class SearchService;

// The KDE runner; its adaptor is made from org.kde.krunner1.xml.
class SearchRunner : public QObject
{
    Q_OBJECT

public:
    explicit SearchRunner(SearchService *service);

public slots:
    RunnerActions Actions();
    RunnerMatches Match(const QString &query);
    void Run(const QString &matchId, const QString &actionId);

private:
    SearchService *m_service;
};
