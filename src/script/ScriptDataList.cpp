#include "ScriptDataList.h"

#include "ScriptService.h"

#include "app/KAppController.h"
#include "ledger/KController.h"
#include "model/DataList.h"
#include "script/ScriptCommands.h"
#include "script/ScriptNames.h"

ScriptDataList::ScriptDataList(ScriptService *service, int uniqueID)
    : QObject(service)
    , m_service(service)
    , m_uniqueID(uniqueID)
{
}

std::shared_ptr<DataList> ScriptDataList::list()
{
    if (!m_service->app()->running()) {
        sendErrorReply(ScriptNames::LockedError,
                       tr("Penwick is locked: enter the password in the program first."));
        return nullptr;
    }
    auto found = ScriptCommands::valueWithID(*m_service->app()->ledger(), m_uniqueID);
    if (!found)
        sendErrorReply(ScriptNames::NoSuchListError, tr("There is no month %1.").arg(m_uniqueID));
    return found;
}

QVariantMapList ScriptDataList::Records()
{
    const auto shown = list();
    return shown ? ScriptCommands::recordProperties(shown->dataListArray()) : QVariantMapList();
}

QVariantMapList ScriptDataList::ExtractedRecords()
{
    const auto shown = list();
    return shown ? ScriptCommands::recordProperties(shown->extractedArray()) : QVariantMapList();
}

QVariantMapList ScriptDataList::ExtractWithASCommand(const QVariantMap &keys)
{
    const auto shown = list();
    if (!shown)
        return {};
    ScriptCommands::extractWithASCommand(*shown, plainArguments(keys),
                                         int(m_service->app()->ledger()->categoryList().size()));
    return ScriptCommands::recordProperties(shown->extractedArray());
}

QVariantMapList ScriptDataList::SortWithASCommand(const QVariantMap &arguments)
{
    const auto shown = list();
    if (!shown)
        return {};
    ScriptCommands::sortWithASCommand(*shown, plainArguments(arguments));
    return ScriptCommands::recordProperties(shown->extractedArray());
}

QVariantMapList ScriptDataList::CancelExtractWithASCommand()
{
    const auto shown = list();
    if (!shown)
        return {};
    ScriptCommands::cancelExtractWithASCommand(*shown);
    return ScriptCommands::recordProperties(shown->extractedArray());
}
