#include "SearchRunner.h"

#include "SearchService.h"

#include "script/ScriptNames.h"
#include "search/LedgerSearch.h"

using namespace Qt::Literals::StringLiterals;

SearchRunner::SearchRunner(SearchService *service)
    : QObject(service)
    , m_service(service)
{
}

RunnerActions SearchRunner::Actions()
{
    return {};
}

RunnerMatches SearchRunner::Match(const QString &query)
{
    RunnerMatches matches;
    const QStringList ids = m_service->resultIDs({query});
    for (const QString &id : ids) {
        const PaymentDataPtr record = m_service->entry(id);
        if (!record)
            continue;
        RunnerMatch match;
        match.id = id;
        match.text = LedgerSearch::entryText(*record);
        match.iconName = ScriptNames::Service;
        // Falling from 1 keeps the newest on top among the matches of other
        // runners of the same kind.
        match.relevance = 1.0 - 0.01 * double(matches.size());
        match.properties.insert(u"subtext"_s, record->paywayAsName());
        matches.append(match);
    }
    return matches;
}

void SearchRunner::Run(const QString &matchId, const QString &)
{
    m_service->showEntry(matchId);
}
