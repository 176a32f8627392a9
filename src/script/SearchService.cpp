#include "SearchService.h"

#include "SearchProvider.h"
#include "SearchRunner.h"
#include "runneradaptor.h"
#include "searchprovideradaptor.h"

#include "script/ScriptHost.h"
#include "script/ScriptNames.h"
#include "script/SearchResults.h"

#include <QDBusMetaType>

SearchService::SearchService(ScriptHost *host, const QDBusConnection &connection, QObject *parent)
    : QObject(parent)
    , m_host(host)
    , m_connection(connection)
{
    qDBusRegisterMetaType<QVariantMapList>();
    qDBusRegisterMetaType<RunnerMatch>();
    qDBusRegisterMetaType<RunnerMatches>();
    qDBusRegisterMetaType<RunnerAction>();
    qDBusRegisterMetaType<RunnerActions>();
}

SearchService::~SearchService()
{
    if (m_connection.isConnected()) {
        m_connection.unregisterObject(ScriptNames::SearchProviderPath);
        m_connection.unregisterObject(ScriptNames::RunnerPath);
        m_connection.unregisterService(ScriptNames::SearchService);
    }
}

bool SearchService::start()
{
    if (!m_connection.isConnected()) {
        m_errorString = tr("There is no session bus: %1").arg(m_connection.lastError().message());
        return false;
    }
    auto *provider = new SearchProvider(this);
    new SearchProviderAdaptor(provider);
    auto *runner = new SearchRunner(this);
    new RunnerAdaptor(runner);
    if (!m_connection.registerObject(ScriptNames::SearchProviderPath, provider)
        || !m_connection.registerObject(ScriptNames::RunnerPath, runner)) {
        m_errorString = tr("The search objects could not be registered.");
        return false;
    }
    if (!m_connection.registerService(ScriptNames::SearchService)) {
        m_errorString = tr("Another program already answers searches as %1.").arg(ScriptNames::SearchService);
        return false;
    }
    return true;
}

QStringList SearchService::resultIDs(const QStringList &words)
{
    emit searched();
    if (!m_host->running())
        return {};
    return SearchResults::resultIDs(*m_host->ledger(), words.join(u' '));
}

PaymentDataPtr SearchService::entry(const QString &id) const
{
    return m_host->running() ? SearchResults::entryForResultID(*m_host->ledger(), id) : nullptr;
}

void SearchService::showEntry(const QString &id)
{
    if (const PaymentDataPtr record = entry(id))
        m_host->showEntry(record);
}

void SearchService::showList()
{
    if (m_host->running())
        m_host->showWindow(ScriptHost::Window::List);
}
