#include "ScriptDataList.h"

#include "ScriptService.h"

#include "ledger/KController.h"
#include "model/DataList.h"
#include "script/ScriptCommands.h"
#include "script/ScriptHost.h"
#include "script/ScriptNames.h"

ScriptDataList::ScriptDataList(ScriptService *service, int uniqueID)
    : QObject(service)
    , m_service(service)
    , m_uniqueID(uniqueID)
{
}

std::shared_ptr<DataList> ScriptDataList::list()
{
    if (!m_service->host()->running()) {
        sendErrorReply(ScriptNames::LockedError,
                       tr("Penwick is locked: enter the password in the program first."));
        return nullptr;
    }
    KController &ledger = *m_service->host()->ledger();
    ScriptCommands::Refusal refusal;
    auto found = ScriptCommands::readableList(ledger, ScriptCommands::valueWithID(ledger, m_uniqueID),
                                              QString::number(m_uniqueID), &refusal);
    if (!found)
        sendErrorReply(refusal.name, refusal.message);
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
                                         int(m_service->host()->ledger()->categoryList().size()));
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
