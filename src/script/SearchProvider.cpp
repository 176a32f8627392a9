#include "SearchProvider.h"

#include "SearchService.h"

#include "script/ScriptNames.h"
#include "search/LedgerSearch.h"

using namespace Qt::Literals::StringLiterals;

SearchProvider::SearchProvider(SearchService *service)
    : QObject(service)
    , m_service(service)
{
}

QStringList SearchProvider::GetInitialResultSet(const QStringList &terms)
{
    return m_service->resultIDs(terms);
}

QStringList SearchProvider::GetSubsearchResultSet(const QStringList &, const QStringList &terms)
{
    // The earlier answer was cut at 20 entries, so narrowing it down could
    // miss older ones: all months are searched again.
    return m_service->resultIDs(terms);
}

QVariantMapList SearchProvider::GetResultMetas(const QStringList &identifiers)
{
    QVariantMapList metas;
    for (const QString &id : identifiers) {
        if (const PaymentDataPtr record = m_service->entry(id))
            metas.append({{u"id"_s, id},
                          {u"name"_s, LedgerSearch::entryText(*record)},
                          {u"description"_s, record->paywayAsName()},
                          {u"gicon"_s, QString(ScriptNames::Service)}});
    }
    return metas;
}

void SearchProvider::ActivateResult(const QString &identifier, const QStringList &, uint)
{
    m_service->showEntry(identifier);
}

void SearchProvider::LaunchSearch(const QStringList &, uint)
{
    m_service->showList();
}
