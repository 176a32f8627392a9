#include "AppCommands.h"

#include "CommandLine.h"

#include "budget/BudgetAmount.h"
#include "entry/EntryCheck.h"
#include "model/EntryLimits.h"
#include "model/MonthKey.h"
#include "model/NumberValue.h"
#include "script/ScriptNames.h"

#include <QCommandLineParser>
#include <QDate>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

namespace {

using RecordList = QList<QVariantMap>;

// A call to the running program. Failures are printed once, here; the
// caller only sees that there is no answer.
std::optional<QList<QVariant>> call(const QString &command, const QString &path,
                                    QLatin1StringView interface, const QString &method,
                                    const QVariantList &arguments = {})
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        CommandLine::printError(AppCommands::tr("%1: there is no session bus to reach Penwick on")
                                    .arg(command));
        return std::nullopt;
    }
    if (!bus.interface()->isServiceRegistered(ScriptNames::Service)) {
        CommandLine::printError(AppCommands::tr("%1: Penwick is not running").arg(command));
        return std::nullopt;
    }
    QDBusMessage message = QDBusMessage::createMethodCall(ScriptNames::Service, path, interface, method);
    message.setArguments(arguments);
    const QDBusMessage reply = bus.call(message, QDBus::Block, 60000);
    if (reply.type() == QDBusMessage::ErrorMessage) {
        CommandLine::printError(u"%1: %2"_s.arg(command, reply.errorMessage()));
        return std::nullopt;
    }
    return reply.arguments();
}

std::optional<QList<QVariant>> callApplication(const QString &command, const QString &method,
                                               const QVariantList &arguments = {})
{
    return call(command, ScriptNames::ApplicationPath, ScriptNames::ApplicationInterface, method,
                arguments);
}

std::optional<QStringList> names(const QString &command, const QString &method)
{
    const auto reply = callApplication(command, method);
    if (!reply || reply->isEmpty())
        return std::nullopt;
    return reply->constFirst().toStringList();
}

QVariantMap recordOf(const QVariant &value)
{
    if (value.canConvert<QDBusArgument>()) {
        QVariantMap record;
        value.value<QDBusArgument>() >> record;
        return record;
    }
    return value.toMap();
}

RecordList recordsOf(const QVariant &value)
{
    RecordList records;
    if (value.canConvert<QDBusArgument>())
        value.value<QDBusArgument>() >> records;
    return records;
}

// One line of an entry: day, category, details, whole amount, payway,
// separated by tabs, with the texts escaped so that a tab or a line break in
// them cannot split the line.
QString lineOf(const QVariantMap &record, const QStringList &categories, const QStringList &payways)
{
    const auto name = [](const QStringList &names, const QVariant &index) {
        return CommandLine::escaped(names.value(index.toInt()));
    };
    return u"%1/%2/%3"_s.arg(record.value(u"year"_s).toInt())
               .arg(record.value(u"month"_s).toInt())
               .arg(record.value(u"date"_s).toInt())
        + u'\t' + name(categories, record.value(u"category"_s)) + u'\t'
        + CommandLine::escaped(record.value(u"details"_s).toString()) + u'\t'
        + QString::number(truncateToInt(record.value(u"amount"_s).toDouble())) + u'\t'
        + name(payways, record.value(u"payway"_s));
}

bool printRecords(const QString &command, const RecordList &records, bool json)
{
    if (json) {
        QJsonArray array;
        for (const QVariantMap &record : records)
            array.append(QJsonObject::fromVariantMap(record));
        CommandLine::printOut(QJsonDocument(array).toJson(QJsonDocument::Indented));
        return true;
    }
    const auto categories = names(command, u"CategoryNames"_s);
    const auto payways = categories ? names(command, u"PaywayNames"_s) : std::nullopt;
    if (!payways)
        return false;
    QByteArray text;
    for (const QVariantMap &record : records)
        text += lineOf(record, *categories, *payways).toUtf8() + '\n';
    CommandLine::printOut(text);
    return true;
}

void printNames(const QStringList &list, bool json)
{
    if (json) {
        CommandLine::printOut(QJsonDocument(QJsonArray::fromStringList(list)).toJson());
        return;
    }
    QByteArray text;
    for (const QString &name : list)
        text += CommandLine::escaped(name).toUtf8() + '\n';
    CommandLine::printOut(text);
}

const QCommandLineOption jsonOption(u"json"_s, AppCommands::tr("Print JSON instead of lines."));

// A report the program answers as JSON text.
std::optional<QJsonDocument> jsonReport(const QString &command, const QString &method,
                                        const QVariantList &arguments = {})
{
    const auto reply = callApplication(command, method, arguments);
    if (!reply || reply->isEmpty())
        return std::nullopt;
    return QJsonDocument::fromJson(reply->constFirst().toString().toUtf8());
}

// With --json a report is printed as the program gave it, and that is all.
bool printedAsJson(const QCommandLineParser &parser, const QJsonDocument &report)
{
    if (!parser.isSet(jsonOption))
        return false;
    CommandLine::printOut(report.toJson(QJsonDocument::Indented));
    return true;
}

// The object path of a month, asked of the program so that it exists there.
std::optional<QString> monthPath(const QString &command, const QString &text)
{
    const auto month = AppCommands::parseMonth(text);
    if (!month) {
        CommandLine::usageError(command, AppCommands::tr("'%1' is not a month; write it as YYYYMM, "
                                                         "as in 200605")
                                             .arg(text));
        return std::nullopt;
    }
    const auto reply = callApplication(command, u"DataListWithID"_s,
                                       {MonthKey::of(month->year, month->month)});
    if (!reply || reply->isEmpty())
        return std::nullopt;
    return reply->constFirst().value<QDBusObjectPath>().path();
}

// Parses a month command's line: YYYYMM first, then the given options.
std::optional<int> parseMonthCommand(QCommandLineParser &parser, const QString &command,
                                     const QStringList &arguments)
{
    parser.addOption(jsonOption);
    parser.addPositionalArgument(u"YYYYMM"_s, AppCommands::tr("The month, as in 200605."));
    if (const auto status = CommandLine::parse(parser, command, arguments))
        return status;
    if (parser.positionalArguments().size() != 1)
        return CommandLine::usageError(command, AppCommands::tr("give exactly one month"));
    return std::nullopt;
}

int runOnMonth(const QString &command, const QString &monthText, const QString &method,
               const QVariantList &arguments, bool json)
{
    const auto path = monthPath(command, monthText);
    if (!path)
        return CommandLine::Failure;
    const auto reply = call(command, *path, ScriptNames::DataListInterface, method, arguments);
    if (!reply || reply->isEmpty())
        return CommandLine::Failure;
    return printRecords(command, recordsOf(reply->constFirst()), json) ? CommandLine::Success
                                                                       : CommandLine::Failure;
}

// Names or indices as the indices in a text the program reads ("2 5").
std::optional<QString> indicesText(const QString &command, const QStringList &given,
                                   const QString &method, const QString &what)
{
    const auto list = names(command, method);
    if (!list)
        return std::nullopt;
    QStringList indices;
    for (const QString &item : given) {
        const auto index = AppCommands::indexOf(item.trimmed(), *list);
        if (!index) {
            CommandLine::printError(AppCommands::tr("%1: unknown %2 '%3'; there are: %4")
                                        .arg(command, what, item.trimmed(), list->join(u", "_s)));
            return std::nullopt;
        }
        indices.append(QString::number(*index));
    }
    return indices.join(u' ');
}

} // namespace

QList<AppCommands::Command> AppCommands::commands()
{
    return {
        {u"categories"_s, tr("Print the category names (the last is income)."), &categories},
        {u"payways"_s, tr("Print the payway names."), &payways},
        {u"show"_s, tr("Open a window: input, list, graph or balance."), &show},
        {u"book"_s, tr("Book one entry."), &book},
        {u"list"_s, tr("Print the entries of a month."), &list},
        {u"search"_s, tr("Search a month and print what it finds."), &search},
        {u"sort"_s, tr("Sort a month's selected entries and print them."), &sort},
        {u"export"_s, tr("Write the entries of a month, a year or all as CSV."), &exportCsv},
        {u"import"_s, tr("Book the entries of a CSV, QIF, OFX or HomeBank file."), &importFile},
        {u"budget"_s, tr("Print a month's spending, budget and what is left per category."),
         &budget},
        {u"schedules"_s, tr("Print the entries that come back, with their next dates."), &schedules},
    };
}

std::optional<AppCommands::Month> AppCommands::parseMonth(const QString &text)
{
    static const QRegularExpression pattern(u"^(\\d{1,4})(\\d\\d)$"_s);
    const auto match = pattern.match(text.trimmed());
    if (!match.hasMatch())
        return std::nullopt;
    const int year = match.capturedView(1).toInt();
    const int month = match.capturedView(2).toInt();
    if (year < 1 || month < 1 || month > 12)
        return std::nullopt;
    return Month{year, month};
}

std::optional<int> AppCommands::indexOf(const QString &nameOrIndex, const QStringList &names)
{
    if (const qsizetype exact = names.indexOf(nameOrIndex); exact >= 0)
        return int(exact);
    bool isNumber = false;
    const int index = nameOrIndex.toInt(&isNumber);
    if (isNumber)
        return index >= 0 && index < names.size() ? std::optional<int>(index) : std::nullopt;
    std::optional<int> found;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names.at(i).compare(nameOrIndex, Qt::CaseInsensitive) != 0)
            continue;
        if (found)
            return std::nullopt; // ambiguous
        found = int(i);
    }
    return found;
}

namespace {
// categories and payways: one list of names, printed in order.
int printNameList(const QString &command, const QString &description, const QString &method,
                  const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    parser.addOption(jsonOption);
    if (const auto status = CommandLine::parse(parser, command, arguments))
        return *status;
    const auto list = names(command, method);
    if (!list)
        return CommandLine::Failure;
    printNames(*list, parser.isSet(jsonOption));
    return CommandLine::Success;
}
} // namespace

int AppCommands::categories(const QStringList &arguments)
{
    return printNameList(u"categories"_s, tr("Prints the category names, in order; the last is income."),
                         u"CategoryNames"_s, arguments);
}

int AppCommands::payways(const QStringList &arguments)
{
    return printNameList(u"payways"_s, tr("Prints the payway names, in order."), u"PaywayNames"_s,
                         arguments);
}

int AppCommands::show(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Opens one of the program's windows."));
    parser.addPositionalArgument(u"WINDOW"_s, tr("input, list, graph or balance"));
    if (const auto status = CommandLine::parse(parser, u"show"_s, arguments))
        return *status;
    static const QHash<QString, QString> methods{{u"input"_s, u"ShowInputWindow"_s},
                                                 {u"list"_s, u"ShowListWindow"_s},
                                                 {u"graph"_s, u"ShowGraphWindow"_s},
                                                 {u"balance"_s, u"ShowBalanceListWindow"_s}};
    const QStringList windows = parser.positionalArguments();
    if (windows.size() != 1 || !methods.contains(windows.constFirst()))
        return CommandLine::usageError(u"show"_s, tr("name one window: input, list, graph or balance"));
    return callApplication(u"show"_s, methods.value(windows.constFirst())) ? CommandLine::Success
                                                                          : CommandLine::Failure;
}

int AppCommands::book(const QStringList &arguments)
{
    const QString command = u"book"_s;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Books one entry and prints it. Without a date it is booked today."));
    const QCommandLineOption amount(u"amount"_s, tr("The amount (required)."), u"N"_s);
    const QCommandLineOption category(u"category"_s, tr("The category, by name or index (required)."),
                                      u"NAME|INDEX"_s);
    const QCommandLineOption details(u"details"_s, tr("What it was."), u"TEXT"_s);
    const QCommandLineOption payway(u"payway"_s, tr("The payway, by name or index."), u"NAME|INDEX"_s);
    const QCommandLineOption year(u"year"_s, tr("The year."), u"YYYY"_s);
    const QCommandLineOption month(u"month"_s, tr("The month, 1 to 12."), u"M"_s);
    const QCommandLineOption date(u"date"_s, tr("The day of the month."), u"D"_s);
    parser.addOptions({amount, category, details, payway, year, month, date, jsonOption});
    if (const auto status = CommandLine::parse(parser, command, arguments))
        return *status;
    if (!parser.positionalArguments().isEmpty())
        return CommandLine::usageError(command, tr("unexpected '%1'").arg(parser.positionalArguments().constFirst()));
    if (!parser.isSet(amount) || !parser.isSet(category))
        return CommandLine::usageError(command, tr("--amount and --category are required"));

    // Every value is checked here, before the program is asked: a day that
    // does not exist is a mistake on the command line, not a date to move.
    QVariantMap fields;
    const auto amountValue = EntryCheck::finiteNumber(parser.value(amount));
    if (!amountValue || !EntryLimits::isAmountStorable(*amountValue))
        return CommandLine::usageError(command, tr("'%1' is not an amount").arg(parser.value(amount)));
    fields.insert(u"amount"_s, *amountValue);
    const QDate today = QDate::currentDate();
    int dateParts[3] = {today.year(), today.month(), today.day()};
    const std::pair<const QCommandLineOption *, QString> dateOptions[] = {
        {&year, u"year"_s}, {&month, u"month"_s}, {&date, u"date"_s}};
    for (int i = 0; i < 3; ++i) {
        const auto &[option, key] = dateOptions[i];
        if (!parser.isSet(*option))
            continue;
        const auto value = EntryCheck::wholeNumber(parser.value(*option));
        if (!value)
            return CommandLine::usageError(command, tr("--%1: '%2' is not a whole number")
                                                        .arg(key, parser.value(*option)));
        dateParts[i] = *value;
        fields.insert(key, *value);
    }
    if (const auto problem = EntryCheck::dateProblem(dateParts[0], dateParts[1], dateParts[2]))
        return CommandLine::usageError(command, *problem);
    if (parser.isSet(details))
        fields.insert(u"details"_s, parser.value(details));
    for (const auto &[option, key, method, what] :
         {std::tuple{&category, u"category"_s, u"CategoryNames"_s, tr("category")},
          std::tuple{&payway, u"payway"_s, u"PaywayNames"_s, tr("payway")}}) {
        if (!parser.isSet(*option))
            continue;
        // One item only: a comma belongs to the name.
        const auto index = indicesText(command, {parser.value(*option)}, method, what);
        if (!index)
            return CommandLine::Failure;
        fields.insert(key, index->toInt());
    }
    if (const auto problem = EntryCheck::newEntryProblem(fields, -1, -1))
        return CommandLine::usageError(command, *problem);

    const auto reply = callApplication(command, u"MakeNewPaymentData"_s, {fields});
    if (!reply || reply->isEmpty())
        return CommandLine::Failure;
    if (const auto stored = EntryCheck::changedWhenStored(*amountValue))
        CommandLine::printError(tr("book: the amount %1 is stored as %2, the nearest an entry holds")
                                    .arg(parser.value(amount).trimmed(), shortestText(*stored)));
    return printRecords(command, {recordOf(reply->constFirst())}, parser.isSet(jsonOption))
        ? CommandLine::Success
        : CommandLine::Failure;
}

int AppCommands::list(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Prints every entry of a month, by day."));
    if (const auto status = parseMonthCommand(parser, u"list"_s, arguments))
        return *status;
    return runOnMonth(u"list"_s, parser.positionalArguments().constFirst(), u"Records"_s, {},
                      parser.isSet(jsonOption));
}

int AppCommands::search(const QStringList &arguments)
{
    const QString command = u"search"_s;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Searches a month and prints the entries found. Every option given must match; "
           "the month keeps the search, as if made in the list window."));
    const QCommandLineOption days(u"days"_s, tr("Days, as in \"1,5,10-12\"."), u"DAYS"_s);
    const QCommandLineOption words(u"words"_s, tr("Words, any of which the details hold."), u"WORDS"_s);
    const QCommandLineOption category(u"category"_s, tr("Categories by name or index, separated by commas."),
                                      u"NAMES"_s);
    const QCommandLineOption payway(u"payway"_s, tr("Payways by name or index, separated by commas."),
                                    u"NAMES"_s);
    const QCommandLineOption min(u"min"_s, tr("The smallest amount."), u"N"_s);
    const QCommandLineOption max(u"max"_s, tr("The largest amount."), u"N"_s);
    parser.addOptions({days, words, category, payway, min, max});
    if (const auto status = parseMonthCommand(parser, command, arguments))
        return *status;

    QVariantMap keys;
    if (parser.isSet(days)) {
        static const QRegularExpression dayList(u"^\\s*\\d+(\\s*-\\s*\\d+)?(\\s*,\\s*\\d+(\\s*-\\s*\\d+)?)*\\s*$"_s);
        if (!dayList.match(parser.value(days)).hasMatch())
            return CommandLine::usageError(command, tr("--days: '%1' is not a list of days such as "
                                                       "\"1,5,10-12\"")
                                                        .arg(parser.value(days)));
        keys.insert(u"Date"_s, parser.value(days));
    }
    if (parser.isSet(words))
        keys.insert(u"Details"_s, parser.value(words));
    for (const auto &[option, key] : {std::pair{&min, u"AmountMin"_s}, std::pair{&max, u"AmountMax"_s}}) {
        if (!parser.isSet(*option))
            continue;
        const auto value = EntryCheck::finiteNumber(parser.value(*option));
        if (!value)
            return CommandLine::usageError(command, tr("'%1' is not an amount").arg(parser.value(*option)));
        keys.insert(key, *value);
    }
    for (const auto &[option, key, method, what] :
         {std::tuple{&category, u"Category"_s, u"CategoryNames"_s, tr("category")},
          std::tuple{&payway, u"Payway"_s, u"PaywayNames"_s, tr("payway")}}) {
        if (!parser.isSet(*option))
            continue;
        const auto text = indicesText(command, parser.value(*option).split(u',', Qt::SkipEmptyParts),
                                      method, what);
        if (!text)
            return CommandLine::Failure;
        keys.insert(key, *text);
    }
    return runOnMonth(command, parser.positionalArguments().constFirst(), u"ExtractWithASCommand"_s,
                      {keys}, parser.isSet(jsonOption));
}

int AppCommands::sort(const QStringList &arguments)
{
    const QString command = u"sort"_s;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Sorts the entries a month selects and prints them. Without --ascend or --descend "
           "the current order turns round."));
    const QCommandLineOption key(u"key"_s, tr("Date, Category, Details, Amount or Payway."), u"KEY"_s);
    const QCommandLineOption ascend(u"ascend"_s, tr("Smallest first."));
    const QCommandLineOption descend(u"descend"_s, tr("Largest first."));
    parser.addOptions({key, ascend, descend});
    if (const auto status = parseMonthCommand(parser, command, arguments))
        return *status;
    static const QStringList keys{u"Date"_s, u"Category"_s, u"Details"_s, u"Amount"_s, u"Payway"_s};
    if (!keys.contains(parser.value(key)))
        return CommandLine::usageError(command, tr("--key must be one of %1").arg(keys.join(u", "_s)));

    QVariantMap sortArguments{{u"sortKey"_s, parser.value(key)}};
    if (parser.isSet(ascend))
        sortArguments.insert(u"ascend"_s, true);
    if (parser.isSet(descend))
        sortArguments.insert(u"descend"_s, true);
    return runOnMonth(command, parser.positionalArguments().constFirst(), u"SortWithASCommand"_s,
                      {sortArguments}, parser.isSet(jsonOption));
}

int AppCommands::exportCsv(const QStringList &arguments)
{
    const QString command = u"export"_s;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Writes entries as CSV (UTF-8, one header line, ISO dates, category and payway by name) "
           "as the running program holds them, edits not yet saved included. Without a scope, "
           "everything."));
    parser.addPositionalArgument(u"SCOPE"_s, tr("A month (200605), a year (2006) or all."),
                                 u"[YYYYMM|YYYY|all]"_s);
    const QCommandLineOption out(u"out"_s, tr("Write to FILE instead of standard output."), u"FILE"_s);
    parser.addOption(out);
    if (const auto status = CommandLine::parse(parser, command, arguments))
        return *status;
    const QStringList scopes = parser.positionalArguments();
    if (scopes.size() > 1)
        return CommandLine::usageError(command, tr("give one month, one year or all"));
    const QString scope = scopes.value(0, u"all"_s);
    static const QRegularExpression pattern(u"^(all|\\d{4}|\\d{6})$"_s);
    if (!pattern.match(scope).hasMatch())
        return CommandLine::usageError(command, tr("'%1' is not a month (YYYYMM), a year (YYYY) or all")
                                                    .arg(scope));
    const auto reply = callApplication(command, u"ExportCsv"_s, {scope});
    if (!reply || reply->isEmpty())
        return CommandLine::Failure;
    const QByteArray text = reply->constFirst().toString().toUtf8();
    if (!parser.isSet(out)) {
        CommandLine::printOut(text);
        return CommandLine::Success;
    }
    // Whole or not at all: a failed export leaves an older file as it was.
    QSaveFile file(parser.value(out));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        CommandLine::printError(u"%1: %2: %3"_s.arg(command, parser.value(out), file.errorString()));
        return CommandLine::Failure;
    }
    return CommandLine::Success;
}

int AppCommands::importFile(const QStringList &arguments)
{
    const QString command = u"import"_s;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Books the entries of a file in the running program, as one change. Categories and "
           "payment modes go to ours by name; rows booked already in their month are skipped; "
           "rows that cannot be read are listed with their line numbers."));
    parser.addPositionalArgument(u"FILE"_s, tr("The file to import."));
    const QCommandLineOption format(u"format"_s, tr("csv, qif, ofx or xhb (else by the file's name "
                                                   "or content)."),
                                    u"FORMAT"_s);
    const QCommandLineOption dryRun(u"dry-run"_s, tr("Print what would be booked; change nothing."));
    const QCommandLineOption category(u"category"_s, tr("Book the file's category SRC as our DST "
                                                       "(repeatable)."),
                                      u"SRC=DST"_s);
    parser.addOptions({format, dryRun, category, jsonOption});
    if (const auto status = CommandLine::parse(parser, command, arguments))
        return *status;
    if (parser.positionalArguments().size() != 1)
        return CommandLine::usageError(command, tr("give exactly one file"));
    static const QStringList formats{u"csv"_s, u"qif"_s, u"ofx"_s, u"xhb"_s};
    if (parser.isSet(format) && !formats.contains(parser.value(format)))
        return CommandLine::usageError(command, tr("--format must be one of %1").arg(formats.join(u", "_s)));
    for (const QString &choice : parser.values(category)) {
        if (choice.indexOf(u'=') <= 0)
            return CommandLine::usageError(command, tr("--category: '%1' is not SRC=DST").arg(choice));
    }

    // The program reads the file itself, from wherever it was started.
    const QString path = QFileInfo(parser.positionalArguments().constFirst()).absoluteFilePath();
    QVariantMap options{{u"dryRun"_s, parser.isSet(dryRun)}};
    if (parser.isSet(format))
        options.insert(u"format"_s, parser.value(format));
    if (parser.isSet(category))
        options.insert(u"categories"_s, parser.values(category));
    const auto reply = jsonReport(command, u"ImportFile"_s, {path, options});
    if (!reply)
        return CommandLine::Failure;
    if (printedAsJson(parser, *reply))
        return CommandLine::Success;
    const QJsonObject report = reply->object();
    QByteArray text;
    // What would be booked, then what would not and why; tabs between fields
    // as the list command prints them.
    for (const QJsonValue &value : report.value(u"entries"_s).toArray()) {
        const QJsonObject entry = value.toObject();
        const QString status = entry.value(u"booked"_s).toBool() ? tr("book")
            : entry.value(u"duplicate"_s).toBool()               ? tr("booked already")
                                                                 : tr("left out");
        text += u"%1\t%2\t%3\t%4\t%5\t%6\t%7\n"_s
                    .arg(tr("line %1").arg(entry.value(u"line"_s).toInt()), status,
                         entry.value(u"date"_s).toString(),
                         CommandLine::escaped(entry.value(u"category"_s).toString()),
                         CommandLine::escaped(entry.value(u"details"_s).toString()),
                         QString::number(entry.value(u"amount"_s).toDouble(), 'g', 9),
                         CommandLine::escaped(entry.value(u"payway"_s).toString()))
                    .toUtf8();
    }
    for (const QJsonValue &value : report.value(u"problems"_s).toArray()) {
        const QJsonObject problem = value.toObject();
        text += u"%1\t%2\n"_s.arg(tr("line %1").arg(problem.value(u"line"_s).toInt()),
                                  CommandLine::escaped(problem.value(u"reason"_s).toString()))
                    .toUtf8();
    }
    QStringList months;
    const QJsonObject perMonth = report.value(u"months"_s).toObject();
    for (auto month = perMonth.constBegin(); month != perMonth.constEnd(); ++month)
        months.append(u"%1: %2"_s.arg(month.key()).arg(month.value().toInt()));
    const QJsonObject skipped = report.value(u"skipped"_s).toObject();
    const int booked = report.value(u"booked"_s).toInt();
    text += (parser.isSet(dryRun) ? tr("Would book %n entries", nullptr, booked)
                                  : tr("Booked %n entries", nullptr, booked))
                .toUtf8();
    if (!months.isEmpty())
        text += " (" + months.join(u", "_s).toUtf8() + ')';
    text += '\n';
    text += tr("Skipped: %1 booked already, %2 unreadable rows")
                .arg(skipped.value(u"duplicates"_s).toInt())
                .arg(skipped.value(u"unreadable"_s).toInt())
                .toUtf8()
        + '\n';
    const QJsonArray unmatched = report.value(u"unmatchedCategories"_s).toArray();
    if (!unmatched.isEmpty()) {
        QStringList names;
        for (const QJsonValue &name : unmatched)
            names.append(name.toString());
        text += tr("Categories without a match, booked as %1: %2")
                    .arg(report.value(u"unmatchedTo"_s).toString(), names.join(u", "_s))
                    .toUtf8()
            + '\n';
    }
    CommandLine::printOut(text);
    return CommandLine::Success;
}

int AppCommands::budget(const QStringList &arguments)
{
    const QString command = u"budget"_s;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Prints, per budgeted category and for all spending, what the month spent, its "
           "budget (what rolled over from earlier months included) and what is left, "
           "separated by tabs. Without a month, this month."));
    parser.addPositionalArgument(u"MONTH"_s, tr("A month, as 200605."), u"[YYYYMM]"_s);
    parser.addOption(jsonOption);
    if (const auto status = CommandLine::parse(parser, command, arguments))
        return *status;
    const QStringList months = parser.positionalArguments();
    if (months.size() > 1)
        return CommandLine::usageError(command, tr("give one month"));
    const QString month = months.value(0);
    static const QRegularExpression pattern(u"^\\d{6}$"_s);
    if (!month.isEmpty() && (!pattern.match(month).hasMatch() || !parseMonth(month)))
        return CommandLine::usageError(command, tr("'%1' is not a month (YYYYMM)").arg(month));
    const auto reply = jsonReport(command, u"BudgetOfMonth"_s, {month});
    if (!reply)
        return CommandLine::Failure;
    if (printedAsJson(parser, *reply))
        return CommandLine::Success;
    const QJsonObject report = reply->object();
    if (const QString problem = report.value(u"problem"_s).toString(); !problem.isEmpty())
        CommandLine::printError(tr("%1: the budgets cannot be read: %2").arg(command, problem));
    const auto amount = [](const QJsonObject &line, const QString &key) {
        return BudgetAmount::editingText(line.value(key).toDouble());
    };
    const auto lineOf = [&amount](const QString &name, const QJsonObject &line) {
        return u"%1\t%2\t%3\t%4\n"_s
            .arg(CommandLine::escaped(name), amount(line, u"spent"_s), amount(line, u"budget"_s),
                 amount(line, u"left"_s))
            .toUtf8();
    };
    QByteArray text = u"%1\t%2\t%3\t%4\n"_s
                          .arg(tr("Category"), tr("Spent"), tr("Budget"), tr("Left"))
                          .toUtf8();
    for (const QJsonValue &value : report.value(u"categories"_s).toArray()) {
        const QJsonObject line = value.toObject();
        text += lineOf(line.value(u"category"_s).toString(), line);
    }
    if (report.contains(u"total"_s))
        text += lineOf(tr("All spending"), report.value(u"total"_s).toObject());
    CommandLine::printOut(text);
    return CommandLine::Success;
}

int AppCommands::schedules(const QStringList &arguments)
{
    const QString command = u"schedules"_s;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Prints the schedules of entries that come back, one a line: the next date (\"-\" "
           "once finished), details, category, amount as typed, payway, the rule and whether it "
           "books automatically or asks first."));
    parser.addOption(jsonOption);
    if (const auto status = CommandLine::parse(parser, command, arguments))
        return *status;
    if (!parser.positionalArguments().isEmpty())
        return CommandLine::usageError(command, tr("takes no arguments"));
    const auto reply = jsonReport(command, u"Schedules"_s);
    if (!reply)
        return CommandLine::Failure;
    if (printedAsJson(parser, *reply))
        return CommandLine::Success;
    QByteArray text;
    for (const QJsonValue &value : reply->array()) {
        const QJsonObject s = value.toObject();
        const QString next = s.value(u"next"_s).toString();
        text += QStringList{next.isEmpty() ? u"-"_s : next,
                            CommandLine::escaped(s.value(u"details"_s).toString()),
                            CommandLine::escaped(s.value(u"categoryName"_s).toString()),
                            CommandLine::escaped(s.value(u"amount"_s).toString()),
                            CommandLine::escaped(s.value(u"paywayName"_s).toString()),
                            s.value(u"rule"_s).toString(),
                            s.value(u"mode"_s).toString()}
                    .join(u'\t')
                    .toUtf8()
                + '\n';
    }
    CommandLine::printOut(text);
    return CommandLine::Success;
}
