#include "ScriptApplication.h"

#include "ScriptService.h"

#include "exchange/CsvExport.h"
#include "exchange/FileToImport.h"
#include "exchange/LedgerImport.h"
#include "ledger/KController.h"
#include "model/DataList.h"
#include "recurring/ScheduleBook.h"
#include "recurring/ScheduleReport.h"
#include "script/BudgetCommand.h"
#include "script/ScriptCommands.h"
#include "script/ScriptHost.h"
#include "script/ScriptNames.h"

#include <QJsonDocument>

using namespace Qt::Literals::StringLiterals;

ScriptApplication::ScriptApplication(ScriptService *service)
    : QObject(service)
    , m_service(service)
{
}

KController *ScriptApplication::ledger()
{
    if (m_service->host()->running())
        return m_service->host()->ledger();
    sendErrorReply(ScriptNames::LockedError,
                   tr("Penwick is locked: enter the password in the program first."));
    return nullptr;
}

QStringList ScriptApplication::CategoryNames()
{
    KController *open = ledger();
    return open ? open->categoryList() : QStringList();
}

QStringList ScriptApplication::PaywayNames()
{
    KController *open = ledger();
    return open ? open->paywayList() : QStringList();
}

void ScriptApplication::show(ScriptHost::Window window)
{
    if (ledger())
        m_service->host()->showWindow(window);
}

void ScriptApplication::ShowInputWindow()
{
    show(ScriptHost::Window::Input);
}

void ScriptApplication::ShowListWindow()
{
    show(ScriptHost::Window::List);
}

void ScriptApplication::ShowGraphWindow()
{
    show(ScriptHost::Window::Graph);
}

void ScriptApplication::ShowBalanceListWindow()
{
    show(ScriptHost::Window::Balance);
}

QVariantMap ScriptApplication::MakeNewPaymentData(const QVariantMap &fields)
{
    KController *open = ledger();
    if (!open)
        return {};
    ScriptCommands::Refusal refusal;
    const PaymentDataPtr record =
        ScriptCommands::makeNewPaymentData(*open, plainArguments(fields), &refusal);
    if (!record) {
        sendErrorReply(refusal.name, refusal.message);
        return {};
    }
    return ScriptCommands::recordProperties(*record);
}

QList<QDBusObjectPath> ScriptApplication::DataLists()
{
    QList<QDBusObjectPath> paths;
    KController *open = ledger();
    if (!open)
        return paths;
    for (const auto &list : ScriptCommands::dataLists(*open))
        paths.append(QDBusObjectPath(m_service->pathForList(*list)));
    return paths;
}

QDBusObjectPath ScriptApplication::pathFor(const std::shared_ptr<DataList> &list, const QString &asked)
{
    ScriptCommands::Refusal refusal;
    const auto readable = ScriptCommands::readableList(*ledger(), list, asked, &refusal);
    if (!readable) {
        sendErrorReply(refusal.name, refusal.message);
        return {};
    }
    return QDBusObjectPath(m_service->pathForList(*readable));
}

QDBusObjectPath ScriptApplication::DataListWithID(int id)
{
    KController *open = ledger();
    return open ? pathFor(ScriptCommands::valueWithID(*open, id), QString::number(id))
                : QDBusObjectPath();
}

QDBusObjectPath ScriptApplication::DataListWithName(const QString &name)
{
    KController *open = ledger();
    return open ? pathFor(ScriptCommands::valueWithName(*open, name), name) : QDBusObjectPath();
}

QDBusObjectPath ScriptApplication::DataListAtIndex(int index)
{
    KController *open = ledger();
    return open ? pathFor(ScriptCommands::valueAtIndex(*open, index), tr("at index %1").arg(index))
                : QDBusObjectPath();
}

QString ScriptApplication::ExportCsv(const QString &scope)
{
    KController *open = ledger();
    if (!open)
        return {};
    const auto named = CsvExport::scopeNamed(scope);
    if (!named) {
        sendErrorReply(ScriptNames::InvalidArgsError,
                       tr("'%1' is not a month (YYYYMM), a year (YYYY) or all").arg(scope));
        return {};
    }
    QString error;
    const auto text = CsvExport::ledgerText(*open, *named, &error);
    if (!text)
        sendErrorReply(ScriptNames::UnreadableError, error);
    return text ? QString::fromUtf8(*text) : QString();
}

QString ScriptApplication::ImportFile(const QString &path, const QVariantMap &options)
{
    KController *open = ledger();
    if (!open)
        return {};
    const QVariantMap plain = plainArguments(options);
    std::optional<Importer::Format> format;
    if (plain.contains(u"format"_s)) {
        format = Importer::formatNamed(plain.value(u"format"_s).toString());
        if (!format) {
            sendErrorReply(ScriptNames::InvalidArgsError,
                           tr("'%1' is not csv, qif, ofx or xhb").arg(plain.value(u"format"_s).toString()));
            return {};
        }
    }
    QString error;
    ImportMapping mapping = LedgerImport::mappingFor(*open);
    if (!mapping.chooseCategories(plain.value(u"categories"_s).toStringList(), &error)) {
        sendErrorReply(ScriptNames::InvalidArgsError, error);
        return {};
    }
    ImportResult imported = FileToImport(path, format).read();
    if (imported.failed()) {
        sendErrorReply(ScriptNames::UnreadableError, imported.error);
        return {};
    }
    LedgerImport import(*open, std::move(imported), mapping);
    const bool dryRun = plain.value(u"dryRun"_s).toBool();
    if (!dryRun && import.report().booked > 0 && !import.book(&error)) {
        sendErrorReply(ScriptNames::BookingFailedError, error);
        return {};
    }
    return QString::fromUtf8(
        QJsonDocument(import.toJson(import.report(), dryRun)).toJson(QJsonDocument::Compact));
}

QString ScriptApplication::BudgetOfMonth(const QString &month)
{
    KController *open = ledger();
    if (!open)
        return {};
    const auto key = BudgetCommand::monthNamed(month);
    if (!key) {
        sendErrorReply(ScriptNames::InvalidArgsError, tr("'%1' is not a month (YYYYMM)").arg(month));
        return {};
    }
    return QString::fromUtf8(BudgetCommand::reportJson(*open, *key / 100, *key % 100));
}

QString ScriptApplication::Schedules()
{
    KController *open = ledger();
    if (!open)
        return {};
    const ScheduleBook *book = open->schedules();
    if (!book->problem().isEmpty()) {
        sendErrorReply(ScriptNames::UnreadableError, book->problem());
        return {};
    }
    const QJsonArray report =
        ScheduleReport::json(book->schedules(), open->categoryList(), open->paywayList());
    return QString::fromUtf8(QJsonDocument(report).toJson(QJsonDocument::Compact));
}
