#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ScriptService.h"
#include "SearchService.h"

#include "app/KAppController.h"
#include "list/ListWinController.h"
#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "script/ScriptNames.h"
#include "script/SearchResults.h"
#include "security/PasswordLock.h"
#include "settings/Settings.h"
#include "storage/DurableFile.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <cerrno>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs a client on the private bus while this process keeps serving it.
Run runClient(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QSignalSpy finished(&process, &QProcess::finished);
    process.start(program, arguments);
    if (!finished.wait(20000))
        qFatal("%s did not finish", qPrintable(program));
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

Run gdbus(const QString &service, const QString &path, const QString &method,
          const QStringList &arguments = {})
{
    return runClient(u"gdbus"_s, QStringList{u"call"_s, u"--session"_s, u"--dest"_s, service,
                                             u"--object-path"_s, path, u"--method"_s, method}
                                     + arguments);
}

Run searchCall(const QString &path, const QString &method, const QStringList &arguments)
{
    return gdbus(ScriptNames::SearchService, path, method, arguments);
}

QStringList resultIDsIn(const QString &reply)
{
    QStringList ids;
    for (const auto &match : QRegularExpression(u"'(\\d+:\\d+:[0-9a-f]+)'"_s).globalMatch(reply))
        ids.append(match.captured(1));
    return ids;
}

// Entries of three months that the desktop's search tests look for.
void bookSearchedEntries(KController &ledger)
{
    ledger.addData({std::make_shared<PaymentData>(2025, 3, 14, 0, u"Bakery"_s, 1550, 0),
                    std::make_shared<PaymentData>(2024, 12, 31, 1, u"Train"_s, 2000, 1),
                    std::make_shared<PaymentData>(2006, 5, 1, 0, u"Bakery"_s, 80, 0)});
}

ListWinController *listWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *list = qobject_cast<ListWinController *>(window); list && list->isVisible())
            return list;
    }
    return nullptr;
}

Run penwickctl(const QStringList &arguments)
{
    return runClient(QStringLiteral(PENWICKCTL_PATH), arguments);
}

} // namespace

// The scripting service on a private session bus, driven through QtDBus, a
// client nobody here wrote (gdbus), and penwickctl.
class TestScriptService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void applicationObject();
    void monthListsByIdIndexAndName();
    void searchAndSortThroughAnotherClient();
    void penwickctlBooksListsAndSearches();
    void penwickctlErrorsAreOneLine();
    void lockedProgramAnswersOnlyAnError();
    void doorChecksThroughDBus_data();
    void doorChecksThroughDBus();
    void doorChecksThroughPenwickctl_data();
    void doorChecksThroughPenwickctl();
    void bookingOnAFullDiskIsNotBooked();
    void unreadableMonthIsAnError();
    void desktopSearchAnswers_data();
    void desktopSearchAnswers();
    void desktopSearchShowsTheEntry_data();
    void desktopSearchShowsTheEntry();

private:
    QDBusInterface application();
    QVariantList recordsAt(const QString &path, const QString &method, const QVariantList &arguments = {});

    TestDataFolder m_home;
    QProcess m_bus;
    QString m_address;
    std::unique_ptr<KAppController> m_app;
    std::unique_ptr<ScriptService> m_service;
    std::unique_ptr<SearchService> m_search;
};

void TestScriptService::initTestCase()
{
    m_bus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
    QVERIFY(m_bus.waitForReadyRead(10000));
    m_address = QString::fromUtf8(m_bus.readLine()).trimmed();
    QVERIFY(!m_address.isEmpty());
    // The clients this test starts find the private bus as their session bus.
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_address.toUtf8());
}

void TestScriptService::init()
{
    m_home.freshDataFolder();
    Settings().setVersion(1);
    m_app = std::make_unique<KAppController>();
    m_service = std::make_unique<ScriptService>(m_app.get(), QDBusConnection::sessionBus());
    QVERIFY2(m_service->start(), qPrintable(m_service->errorString()));
    m_search = std::make_unique<SearchService>(m_app.get(), QDBusConnection::sessionBus());
    QVERIFY2(m_search->start(), qPrintable(m_search->errorString()));
    if (QTest::currentTestFunction() == "lockedProgramAnswersOnlyAnError"_L1)
        QVERIFY(PasswordLock::savePasswordToDefault(u"secret"_s));
    m_app->confirmPassword();
}

void TestScriptService::cleanup()
{
    m_search.reset();
    m_service.reset();
    m_app.reset();
    PasswordLock::savePasswordToDefault({});
}

void TestScriptService::cleanupTestCase()
{
    m_bus.kill();
    m_bus.waitForFinished();
}

QDBusInterface TestScriptService::application()
{
    return QDBusInterface(ScriptNames::Service, ScriptNames::ApplicationPath,
                          ScriptNames::ApplicationInterface, QDBusConnection::sessionBus());
}

QVariantList TestScriptService::recordsAt(const QString &path, const QString &method,
                                          const QVariantList &arguments)
{
    QDBusInterface list(ScriptNames::Service, path, ScriptNames::DataListInterface,
                        QDBusConnection::sessionBus());
    const QDBusMessage reply = list.callWithArgumentList(QDBus::Block, method, arguments);
    if (reply.type() == QDBusMessage::ErrorMessage)
        qFatal("%s: %s", qPrintable(method), qPrintable(reply.errorMessage()));
    QList<QVariantMap> records;
    reply.arguments().constFirst().value<QDBusArgument>() >> records;
    QVariantList details;
    for (const QVariantMap &record : records)
        details.append(record.value(u"details"_s));
    return details;
}

void TestScriptService::applicationObject()
{
    QDBusInterface app = application();
    const QDBusReply<QStringList> categories = app.call(u"CategoryNames"_s);
    QCOMPARE(categories.value(), m_app->ledger()->categoryList());
    QCOMPARE(QDBusReply<QStringList>(app.call(u"PaywayNames"_s)).value(),
             m_app->ledger()->paywayList());

    const QDBusMessage booked = app.call(u"MakeNewPaymentData"_s,
                                         QVariantMap{{u"year"_s, 2006}, {u"month"_s, 14},
                                                     {u"date"_s, 2}, {u"amount"_s, 500},
                                                     {u"category"_s, 2}, {u"details"_s, u"Rice"_s}});
    QCOMPARE(booked.type(), QDBusMessage::ReplyMessage);
    QVariantMap record;
    booked.arguments().constFirst().value<QDBusArgument>() >> record;
    QCOMPARE(record.value(u"month"_s).toInt(), 12);
    QCOMPARE(record.value(u"details"_s).toString(), u"Rice"_s);
    QVERIFY(QFileInfo::exists(m_app->ledger()->filePathForYear(2006, 12)));
}

void TestScriptService::monthListsByIdIndexAndName()
{
    QDBusInterface app = application();
    const QDBusReply<QDBusObjectPath> byId = app.call(u"DataListWithID"_s, 200605);
    QCOMPARE(byId.value().path(), ScriptNames::DataListsPath + u"200605"_s);
    QDBusInterface may(ScriptNames::Service, byId.value().path(), ScriptNames::DataListInterface,
                       QDBusConnection::sessionBus());
    QCOMPARE(may.property("Year").toInt(), 2006);
    QCOMPARE(may.property("Month").toInt(), 5);
    QCOMPARE(may.property("Name").toString(), u"200605"_s);

    const QDBusReply<QDBusObjectPath> byIndex = app.call(u"DataListAtIndex"_s, 0);
    QCOMPARE(byIndex.value().path(), ScriptNames::DataListsPath + u"200401"_s);
    const QDBusReply<QDBusObjectPath> byName = app.call(u"DataListWithName"_s, u"200605"_s);
    QCOMPARE(byName.value(), byId.value());

    const QDBusMessage impossible = app.call(u"DataListWithID"_s, 200614);
    QCOMPARE(impossible.errorName(), QString(ScriptNames::NoSuchListError));

    app.call(u"MakeNewPaymentData"_s, QVariantMap{{u"year"_s, 2003}, {u"month"_s, 2}});
    const QDBusReply<QList<QDBusObjectPath>> all = app.call(u"DataLists"_s);
    QCOMPARE(all.value().constFirst().path(), ScriptNames::DataListsPath + u"200302"_s);
}

void TestScriptService::searchAndSortThroughAnotherClient()
{
    const auto may = m_app->ledger()->monthListForYear(2006, 5);
    may->addData({std::make_shared<PaymentData>(2006, 5, 1, 2, u"Bread"_s, 3.5f, 0),
                  std::make_shared<PaymentData>(2006, 5, 10, 5, u"Bus pass"_s, 60, 1),
                  std::make_shared<PaymentData>(2006, 5, 11, 3, u"Socks"_s, 12, 0)});
    const QString path = ScriptNames::DataListsPath + u"200605"_s;
    application().call(u"DataListWithID"_s, 200605);
    const auto call = [&path](const QString &method, const QStringList &arguments) {
        return gdbus(ScriptNames::Service, path, method, arguments);
    };

    // A category text of two numbers selects either.
    const Run search = call(u"org.penwick.Penwick.DataList.ExtractWithASCommand"_s,
                            {u"{'Category': <'2 5'>}"_s});
    QVERIFY2(search.exitCode == 0, qPrintable(search.err));
    QVERIFY(search.out.contains(u"Bread"_s) && search.out.contains(u"Bus pass"_s));
    QVERIFY(!search.out.contains(u"Socks"_s));

    const Run sorted = call(u"org.penwick.Penwick.DataList.SortWithASCommand"_s,
                            {u"{'sortKey': <'Amount'>, 'descend': <true>, 'ascend': <true>}"_s});
    QVERIFY2(sorted.exitCode == 0, qPrintable(sorted.err));
    QVERIFY(sorted.out.indexOf(u"Bread"_s) < sorted.out.indexOf(u"Bus pass"_s));

    const Run year = call(u"org.freedesktop.DBus.Properties.Get"_s,
                          {u"org.penwick.Penwick.DataList"_s, u"Year"_s});
    QCOMPARE(year.out.trimmed(), u"(<2006>,)"_s);
    QCOMPARE(recordsAt(path, u"CancelExtractWithASCommand"_s).size(), 3);
}

void TestScriptService::penwickctlBooksListsAndSearches()
{
    const QStringList categories = m_app->ledger()->categoryList();
    const Run names = penwickctl({u"categories"_s});
    QCOMPARE(names.exitCode, 0);
    QCOMPARE(names.out, categories.join(u'\n') + u'\n');

    const Run booked = penwickctl({u"book"_s, u"--amount"_s, u"1250"_s, u"--category"_s,
                                   categories.at(1), u"--details"_s, u"Dinner out"_s,
                                   u"--year"_s, u"2006"_s, u"--month"_s, u"5"_s, u"--date"_s, u"20"_s});
    QVERIFY2(booked.exitCode == 0, qPrintable(booked.err));
    QCOMPARE(booked.out.count(u'\n'), 1);
    QVERIFY(booked.out.contains(u"Dinner out"_s));
    QVERIFY(QFileInfo::exists(m_app->ledger()->filePathForYear(2006, 5)));
    penwickctl({u"book"_s, u"--amount"_s, u"80"_s, u"--category"_s, u"0"_s, u"--details"_s,
                u"Apples"_s, u"--year"_s, u"2006"_s, u"--month"_s, u"5"_s, u"--date"_s, u"3"_s});

    const Run listed = penwickctl({u"list"_s, u"200605"_s});
    QCOMPARE(listed.exitCode, 0);
    QCOMPARE(listed.out.count(u'\n'), 2);
    QVERIFY(listed.out.indexOf(u"Apples"_s) < listed.out.indexOf(u"Dinner out"_s));

    const Run found = penwickctl({u"search"_s, u"200605"_s, u"--days"_s, u"15-25"_s, u"--json"_s});
    QCOMPARE(found.exitCode, 0);
    QVERIFY(found.out.contains(u"\"details\": \"Dinner out\""_s));
    QVERIFY(!found.out.contains(u"Apples"_s));

    // A search without keys selects everything again.
    QCOMPARE(penwickctl({u"search"_s, u"200605"_s}).out.count(u'\n'), 2);
    const Run sorted = penwickctl({u"sort"_s, u"200605"_s, u"--key"_s, u"Amount"_s, u"--descend"_s});
    QCOMPARE(sorted.exitCode, 0);
    QCOMPARE(sorted.out.count(u'\n'), 2);
    QVERIFY(sorted.out.indexOf(u"Dinner out"_s) < sorted.out.indexOf(u"Apples"_s));

    // Export reads what the program holds, by day.
    const QString csv = u"Date,Category,Details,Amount,Payway\r\n2006-05-03,%1,Apples,80,%3\r\n"
                        "2006-05-20,%2,Dinner out,1250,%3\r\n"_s.arg(categories.at(0), categories.at(1),
                                                                     m_app->ledger()->paywayList().at(0));
    const Run exported = penwickctl({u"export"_s, u"2006"_s});
    QVERIFY2(exported.exitCode == 0, qPrintable(exported.err));
    QCOMPARE(exported.out, csv);
    const QString file = m_home.filePath(u"out.csv"_s);
    QCOMPARE(penwickctl({u"export"_s, u"all"_s, u"--out"_s, file}).exitCode, 0);
    QCOMPARE(QString::fromUtf8(readBytes(file)), csv);
    QCOMPARE(penwickctl({u"export"_s, u"200604"_s}).out, csv.section(u'\n', 0, 0) + u'\n');
}

void TestScriptService::penwickctlErrorsAreOneLine()
{
    const auto expectError = [](const Run &run, const QString &words) {
        QVERIFY2(run.exitCode != 0, qPrintable(run.out));
        QVERIFY2(run.err.contains(words), qPrintable(run.err));
        QVERIFY(run.out.isEmpty());
    };
    expectError(penwickctl({u"book"_s, u"--amount"_s, u"5"_s, u"--category"_s, u"Nonsense"_s}),
                u"unknown category 'Nonsense'"_s);
    expectError(penwickctl({u"list"_s, u"200613"_s}), u"'200613' is not a month"_s);
    expectError(penwickctl({u"show"_s, u"everything"_s}), u"name one window"_s);
    expectError(penwickctl({u"export"_s, u"20061"_s}), u"'20061' is not a month (YYYYMM)"_s);
    expectError(penwickctl({u"export"_s, u"200613"_s}), u"'200613' is not a month (YYYYMM)"_s);

    m_service.reset();
    const Run notRunning = penwickctl({u"categories"_s});
    expectError(notRunning, u"Penwick is not running"_s);
    QCOMPARE(notRunning.err.count(u'\n'), 1);
}

void TestScriptService::lockedProgramAnswersOnlyAnError()
{
    QVERIFY(!m_app->running());
    const QDBusMessage reply = application().call(u"CategoryNames"_s);
    QCOMPARE(reply.errorName(), QString(ScriptNames::LockedError));
    const Run run = penwickctl({u"book"_s, u"--amount"_s, u"5"_s, u"--category"_s, u"0"_s});
    QVERIFY(run.exitCode != 0);
    QVERIFY2(run.err.contains(u"locked"_s), qPrintable(run.err));
    QVERIFY(!QFileInfo::exists(m_app->ledger()->filePathForYear(QDate::currentDate().year(),
                                                                 QDate::currentDate().month())));

    // The desktop's search finds nothing, and shows nothing, until the
    // password is given, though the months hold what it asks for.
    KController other;
    other.readListPreference();
    bookSearchedEntries(other);
    const QString id = SearchResults::resultIDs(other, u"Bakery"_s).constFirst();
    const QString provider = ScriptNames::SearchProviderPath;
    const QString runner = ScriptNames::RunnerPath;
    for (const Run &asked :
         {searchCall(provider, u"org.gnome.Shell.SearchProvider2.GetInitialResultSet"_s, {u"['Bakery']"_s}),
          searchCall(provider, u"org.gnome.Shell.SearchProvider2.GetSubsearchResultSet"_s,
                     {u"['"_s + id + u"']"_s, u"['Bakery']"_s}),
          searchCall(provider, u"org.gnome.Shell.SearchProvider2.GetResultMetas"_s, {u"['"_s + id + u"']"_s}),
          searchCall(runner, u"org.kde.krunner1.Match"_s, {u"'Bakery'"_s})}) {
        QVERIFY2(asked.exitCode == 0, qPrintable(asked.err));
        QVERIFY2(!asked.out.contains(u"Bakery"_s) && resultIDsIn(asked.out).isEmpty(), qPrintable(asked.out));
    }
    searchCall(provider, u"org.gnome.Shell.SearchProvider2.ActivateResult"_s, {id, u"['Bakery']"_s, u"0"_s});
    searchCall(runner, u"org.kde.krunner1.Run"_s, {id, u"''"_s});
    QVERIFY(!listWindow());
}

void TestScriptService::doorChecksThroughDBus_data()
{
    QTest::addColumn<QVariantMap>("fields");
    QTest::addColumn<QString>("error");
    const QString invalid = ScriptNames::InvalidArgsError;
    QTest::newRow("year -1") << QVariantMap{{u"year"_s, -1}} << invalid;
    QTest::newRow("year 10000") << QVariantMap{{u"year"_s, 10000}} << invalid;
    QTest::newRow("year abc") << QVariantMap{{u"year"_s, u"abc"_s}} << invalid;
    QTest::newRow("date 12x") << QVariantMap{{u"date"_s, u"12x"_s}} << invalid;
    QTest::newRow("month 2.5") << QVariantMap{{u"month"_s, 2.5}} << invalid;
    QTest::newRow("category 99") << QVariantMap{{u"category"_s, 99}} << invalid;
    QTest::newRow("payway -7") << QVariantMap{{u"payway"_s, -7}} << invalid;
    QTest::newRow("amount nan") << QVariantMap{{u"amount"_s, qQNaN()}} << invalid;
    QTest::newRow("amount 1e39") << QVariantMap{{u"amount"_s, 1e39}} << invalid;
    QTest::newRow("amount 'nan'") << QVariantMap{{u"amount"_s, u"nan"_s}} << invalid;
    // Kept within bounds as documented, and booked.
    QTest::newRow("month 14, date 40") << QVariantMap{{u"year"_s, 2006}, {u"month"_s, 14},
                                                      {u"date"_s, 40}} << QString();
    QTest::newRow("numbers as text") << QVariantMap{{u"year"_s, u"2006"_s}, {u"amount"_s, u"12.5"_s}}
                                     << QString();
}

void TestScriptService::doorChecksThroughDBus()
{
    QFETCH(QVariantMap, fields);
    QFETCH(QString, error);
    const QStringList before = QDir(m_home.dataFolder()).entryList(QDir::Files);
    const QDBusMessage reply = application().call(u"MakeNewPaymentData"_s, fields);
    QCOMPARE(reply.errorName(), error);
    if (!error.isEmpty()) {
        QCOMPARE(QDir(m_home.dataFolder()).entryList(QDir::Files), before);
        // The service still answers everything else.
        QCOMPARE(application().call(u"DataLists"_s).type(), QDBusMessage::ReplyMessage);
    }
    for (int id : {-9802, 1000001, 214748364})
        QCOMPARE(application().call(u"DataListWithID"_s, id).errorName(),
                 QString(ScriptNames::NoSuchListError));
}

void TestScriptService::doorChecksThroughPenwickctl_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("words");
    const QStringList book{u"book"_s, u"--category"_s, u"0"_s};
    QTest::newRow("amount nan") << book + QStringList{u"--amount"_s, u"nan"_s} << u"not an amount"_s;
    QTest::newRow("amount 1e39") << book + QStringList{u"--amount"_s, u"1e39"_s} << u"not an amount"_s;
    QTest::newRow("year -1") << book + QStringList{u"--amount"_s, u"1"_s, u"--year"_s, u"-1"_s}
                             << u"year -1"_s;
    QTest::newRow("year abc") << book + QStringList{u"--amount"_s, u"1"_s, u"--year"_s, u"abc"_s}
                              << u"not a whole number"_s;
    QTest::newRow("month 13") << book + QStringList{u"--amount"_s, u"1"_s, u"--month"_s, u"13"_s}
                              << u"month 13"_s;
    QTest::newRow("date 12x") << book + QStringList{u"--amount"_s, u"1"_s, u"--date"_s, u"12x"_s}
                              << u"not a whole number"_s;
    QTest::newRow("date 0") << book + QStringList{u"--amount"_s, u"1"_s, u"--date"_s, u"0"_s}
                            << u"day 0"_s;
    QTest::newRow("31 February")
        << book + QStringList{u"--amount"_s, u"1"_s, u"--year"_s, u"2006"_s, u"--month"_s, u"2"_s,
                              u"--date"_s, u"31"_s}
        << u"day 31 is not within 1 to 28"_s;
    QTest::newRow("category 99") << QStringList{u"book"_s, u"--amount"_s, u"1"_s, u"--category"_s,
                                                u"99"_s}
                                 << u"unknown category"_s;
    QTest::newRow("days abc") << QStringList{u"search"_s, u"200605"_s, u"--days"_s, u"abc"_s}
                              << u"not a list of days"_s;
    QTest::newRow("min nan") << QStringList{u"search"_s, u"200605"_s, u"--min"_s, u"nan"_s}
                             << u"not an amount"_s;
}

void TestScriptService::doorChecksThroughPenwickctl()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, words);
    const Run run = penwickctl(arguments);
    QVERIFY(run.exitCode != 0);
    QVERIFY2(run.err.contains(words), qPrintable(run.err));
    QVERIFY(run.out.isEmpty());
    QVERIFY(QDir(m_home.dataFolder())
                .entryList({u"*.Penwick"_s}, QDir::Files | QDir::CaseSensitive)
                .isEmpty());
}

void TestScriptService::bookingOnAFullDiskIsNotBooked()
{
    const QStringList book{u"book"_s, u"--amount"_s, u"99999999"_s, u"--category"_s, u"0"_s,
                           u"--details"_s, u"tab\there\nand a line"_s, u"--year"_s, u"2006"_s,
                           u"--month"_s, u"5"_s, u"--date"_s, u"2"_s};
    QCOMPARE(penwickctl(book).exitCode, 0);
    const QString may = m_app->ledger()->filePathForYear(2006, 5);
    const QByteArray before = readBytes(may);

    DurableFile::setFaultForTesting(DurableFile::Fault{DurableFile::Step::Write, ENOSPC,
                                                       m_home.dataFolder()});
    const QDBusMessage reply = application().call(
        u"MakeNewPaymentData"_s, QVariantMap{{u"year"_s, 2006}, {u"month"_s, 5}, {u"amount"_s, 5}});
    QCOMPARE(reply.errorName(), QString(ScriptNames::NotSavedError));
    const Run full = penwickctl(book);
    DurableFile::setFaultForTesting(std::nullopt);
    QVERIFY(full.exitCode != 0);
    QVERIFY2(full.err.contains(QString::fromLocal8Bit(std::strerror(ENOSPC))), qPrintable(full.err));
    QCOMPARE(readBytes(may), before);
    QCOMPARE(m_app->ledger()->monthListForYear(2006, 5)->dataListArray().size(), 1);
    QVERIFY(!m_app->ledger()->hasUnsavedMonths());

    // Space is back: the next booking goes through, and says what it stored.
    const Run again = penwickctl(book);
    QCOMPARE(again.exitCode, 0);
    QVERIFY2(again.err.contains(u"stored as 100000000"_s), qPrintable(again.err));
    const Run listed = penwickctl({u"list"_s, u"200605"_s});
    QCOMPARE(listed.out.count(u'\n'), 2);
    QVERIFY2(listed.out.contains(u"\ttab\\there\\nand a line\t"_s), qPrintable(listed.out));
}

void TestScriptService::unreadableMonthIsAnError()
{
    writeBytes(m_app->ledger()->filePathForYear(2006, 7), "not a month");
    QCOMPARE(application().call(u"DataListWithID"_s, 200607).errorName(),
             QString(ScriptNames::UnreadableError));
    QCOMPARE(application().call(u"DataListWithID"_s, 200600).errorName(),
             QString(ScriptNames::UnreadableError));
    const Run listed = penwickctl({u"list"_s, u"200607"_s});
    QVERIFY(listed.exitCode != 0);
    QVERIFY2(listed.err.contains(u"cannot be read"_s), qPrintable(listed.err));
    QCOMPARE(readBytes(m_app->ledger()->filePathForYear(2006, 7)), QByteArray("not a month"));
}

void TestScriptService::desktopSearchAnswers_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("found");
    const QString provider = ScriptNames::SearchProviderPath;
    QTest::newRow("GNOME, first words")
        << provider << u"org.gnome.Shell.SearchProvider2.GetInitialResultSet"_s
        << QStringList{u"['Bakery']"_s} << QStringList{u"2025/3/14"_s, u"2006/5/1"_s};
    // The earlier results were cut short, so every month is searched again.
    QTest::newRow("GNOME, more words")
        << provider << u"org.gnome.Shell.SearchProvider2.GetSubsearchResultSet"_s
        << QStringList{u"['200605:0:0000']"_s, u"['Bakery', 'Train']"_s}
        << QStringList{u"2025/3/14"_s, u"2024/12/31"_s, u"2006/5/1"_s};
    QTest::newRow("KDE") << QString(ScriptNames::RunnerPath) << u"org.kde.krunner1.Match"_s
                         << QStringList{u"'Train'"_s} << QStringList{u"2024/12/31"_s};
}

void TestScriptService::desktopSearchAnswers()
{
    QFETCH(QString, path);
    QFETCH(QString, method);
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, found);
    bookSearchedEntries(*m_app->ledger());
    const Run asked = searchCall(path, method, arguments);
    QVERIFY2(asked.exitCode == 0, qPrintable(asked.err));
    const QStringList ids = resultIDsIn(asked.out);
    QCOMPARE(ids.size(), found.size());
    // GNOME asks for the texts apart; the runner has them in its matches.
    QString shown = asked.out;
    if (path == ScriptNames::SearchProviderPath)
        shown = searchCall(path, u"org.gnome.Shell.SearchProvider2.GetResultMetas"_s,
                           {u"['"_s + ids.join(u"', '"_s) + u"']"_s})
                    .out;
    qsizetype at = 0;
    for (const QString &date : found) {
        const qsizetype next = shown.indexOf(date + u' ', at);
        QVERIFY2(next > at, qPrintable(shown));
        at = next;
    }
    QVERIFY2(shown.contains(u"'org.penwick.Penwick'"_s), qPrintable(shown));
}

void TestScriptService::desktopSearchShowsTheEntry_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("GNOME") << QString(ScriptNames::SearchProviderPath)
                           << u"org.gnome.Shell.SearchProvider2.ActivateResult"_s
                           << QStringList{u"['Train']"_s, u"0"_s};
    QTest::newRow("KDE") << QString(ScriptNames::RunnerPath) << u"org.kde.krunner1.Run"_s
                         << QStringList{u"''"_s};
}

void TestScriptService::desktopSearchShowsTheEntry()
{
    QFETCH(QString, path);
    QFETCH(QString, method);
    QFETCH(QStringList, arguments);
    bookSearchedEntries(*m_app->ledger());
    const QString id = SearchResults::resultIDs(*m_app->ledger(), u"Train"_s).constFirst();
    const Run shown = searchCall(path, method, QStringList{id} + arguments);
    QVERIFY2(shown.exitCode == 0, qPrintable(shown.err));
    ListWinController *list = listWindow();
    QVERIFY(list);
    QCOMPARE(list->year() * 100 + list->month(), 202412);
    QCOMPARE(list->dataForSelectedRow(), SearchResults::entryForResultID(*m_app->ledger(), id));
}

QTEST_MAIN(TestScriptService)
#include "tst_scriptservice.moc"
