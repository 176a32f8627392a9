#include "ClientRun.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"
#include "WindowHelpers.h"

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

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <cerrno>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace {

// A client nobody here wrote.
ClientRun searchCall(const QString &path, const QString &method, const QStringList &arguments)
{
    return runClient(u"gdbus"_s,
                     QStringList{u"call"_s, u"--session"_s, u"--dest"_s, ScriptNames::SearchService,
                                 u"--object-path"_s, path, u"--method"_s, method}
                         + arguments);
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

} // namespace

// The scripting service on a private session bus, driven through QtDBus, a
// client nobody here wrote (gdbus), and penwickctl.
class TestScriptService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_bus.start();
    }

    void init()
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

    void cleanup()
    {
        m_search.reset();
        m_service.reset();
        m_app.reset();
        PasswordLock::savePasswordToDefault({});
    }

    void dbusCalls_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QVariantList>("arguments");
        QTest::addColumn<QString>("error");
        QTest::addColumn<QString>("reply");

        const auto book = [](const QVariantMap &fields) {
            return QVariantList{fields};
        };
        // Brought within bounds as documented, and booked.
        QTest::newRow("book, month 14")
            << u"MakeNewPaymentData"_s
            << book({{u"year"_s, 2006}, {u"month"_s, 14}, {u"date"_s, 2}, {u"amount"_s, 500},
                     {u"category"_s, 2}, {u"details"_s, u"Rice"_s}})
            << QString() << u"details=Rice month=12"_s;
        QTest::newRow("book, date 40") << u"MakeNewPaymentData"_s
                                       << book({{u"year"_s, 2006}, {u"month"_s, 3}, {u"date"_s, 40}})
                                       << QString() << QString();
        QTest::newRow("book, numbers as text")
            << u"MakeNewPaymentData"_s
            << book({{u"year"_s, u"2006"_s}, {u"month"_s, 3}, {u"amount"_s, u"12.5"_s}})
            << QString() << u"amount=12.5"_s;
        const QString invalid = ScriptNames::InvalidArgsError;
        const QList<std::pair<const char *, QVariantMap>> refused{
            {"year -1", {{u"year"_s, -1}}}, {"year 10000", {{u"year"_s, 10000}}},
            {"year abc", {{u"year"_s, u"abc"_s}}}, {"date 12x", {{u"date"_s, u"12x"_s}}},
            {"month 2.5", {{u"month"_s, 2.5}}}, {"category 99", {{u"category"_s, 99}}},
            {"payway -7", {{u"payway"_s, -7}}}, {"amount nan", {{u"amount"_s, qQNaN()}}},
            {"amount 1e39", {{u"amount"_s, 1e39}}}, {"amount 'nan'", {{u"amount"_s, u"nan"_s}}}};
        for (const auto &[name, fields] : refused)
            QTest::addRow("book, %s", name) << u"MakeNewPaymentData"_s << book(fields) << invalid
                                            << QString();

        const QString may = ScriptNames::DataListsPath + u"200605"_s;
        QTest::newRow("list by id") << u"DataListWithID"_s << QVariantList{200605} << QString() << may;
        QTest::newRow("list by name") << u"DataListWithName"_s << QVariantList{u"200605"_s}
                                      << QString() << may;
        QTest::newRow("list by index") << u"DataListAtIndex"_s << QVariantList{0} << QString()
                                       << ScriptNames::DataListsPath + u"200401"_s;
        for (const int id : {200614, -9802, 1000001, 214748364})
            QTest::addRow("list %d", id) << u"DataListWithID"_s << QVariantList{id}
                                         << QString(ScriptNames::NoSuchListError) << QString();
        // July is written as garbage below; the year's month 0 reads all of it.
        for (const int id : {200607, 200600})
            QTest::addRow("unreadable %d", id) << u"DataListWithID"_s << QVariantList{id}
                                               << QString(ScriptNames::UnreadableError) << QString();
    }

    void dbusCalls()
    {
        QFETCH(QString, method);
        QFETCH(QVariantList, arguments);
        QFETCH(QString, error);
        QFETCH(QString, reply);

        const QString july = m_app->ledger()->filePathForYear(2006, 7);
        writeBytes(july, "not a month");
        const QStringList before = QDir(m_home.dataFolder()).entryList(QDir::Files);
        const QDBusMessage answer = application().callWithArgumentList(QDBus::Block, method, arguments);
        QCOMPARE(answer.errorName(), error);

        QStringList shown;
        for (const QVariant &argument : answer.arguments()) {
            if (argument.canConvert<QDBusObjectPath>()) {
                shown.append(argument.value<QDBusObjectPath>().path());
            } else if (argument.canConvert<QDBusArgument>()) {
                QVariantMap record;
                argument.value<QDBusArgument>() >> record;
                for (auto it = record.cbegin(); it != record.cend(); ++it)
                    shown.append(it.key() + u'=' + it.value().toString());
            }
        }
        for (const QString &part : reply.split(u' ', Qt::SkipEmptyParts))
            QVERIFY2(shown.contains(part), qPrintable(shown.join(u' ')));

        // A booking writes its month; a refused call writes nothing, not even
        // over the unreadable month, and the service answers on.
        const QStringList after = QDir(m_home.dataFolder()).entryList(QDir::Files);
        QCOMPARE(after.size(), before.size() + (method == u"MakeNewPaymentData"_s && error.isEmpty()));
        QCOMPARE(readBytes(july), QByteArray("not a month"));
        QCOMPARE(QDBusReply<QStringList>(application().call(u"CategoryNames"_s)).value(),
                 m_app->ledger()->categoryList());
    }

    void penwickctlBooksListsAndSearches()
    {
        const QStringList categories = m_app->ledger()->categoryList();
        const ClientRun names = penwickctl({u"categories"_s});
        QCOMPARE(names.exitCode, 0);
        QCOMPARE(names.out, categories.join(u'\n') + u'\n');

        const ClientRun booked = penwickctl(words(u"book --amount 1250 --year 2006 --month 5 --date 20"_s)
                                            + QStringList{u"--category"_s, categories.at(1), u"--details"_s,
                                                          u"Dinner out"_s});
        QVERIFY2(booked.exitCode == 0, qPrintable(booked.err));
        QCOMPARE(booked.out.count(u'\n'), 1);
        QVERIFY(booked.out.contains(u"Dinner out"_s));
        QVERIFY(QFileInfo::exists(m_app->ledger()->filePathForYear(2006, 5)));
        penwickctl(words(u"book --amount 80 --category 0 --details Apples --year 2006 --month 5 --date 3"_s));

        const ClientRun listed = penwickctl({u"list"_s, u"200605"_s});
        QCOMPARE(listed.exitCode, 0);
        QCOMPARE(listed.out.count(u'\n'), 2);
        QVERIFY(listed.out.indexOf(u"Apples"_s) < listed.out.indexOf(u"Dinner out"_s));

        const ClientRun found = penwickctl(words(u"search 200605 --days 15-25 --json"_s));
        QCOMPARE(found.exitCode, 0);
        QVERIFY(found.out.contains(u"\"details\": \"Dinner out\""_s));
        QVERIFY(!found.out.contains(u"Apples"_s));

        // A search without keys selects everything again.
        QCOMPARE(penwickctl(words(u"search 200605"_s)).out.count(u'\n'), 2);
        const ClientRun sorted = penwickctl(words(u"sort 200605 --key Amount --descend"_s));
        QCOMPARE(sorted.exitCode, 0);
        QCOMPARE(sorted.out.count(u'\n'), 2);
        QVERIFY(sorted.out.indexOf(u"Dinner out"_s) < sorted.out.indexOf(u"Apples"_s));

        // Export reads what the program holds, by day.
        const QString csv = u"Date,Category,Details,Amount,Payway\r\n2006-05-03,%1,Apples,80,%3\r\n"
                            "2006-05-20,%2,Dinner out,1250,%3\r\n"_s.arg(categories.at(0), categories.at(1),
                                                                         m_app->ledger()->paywayList().at(0));
        const ClientRun exported = penwickctl({u"export"_s, u"2006"_s});
        QVERIFY2(exported.exitCode == 0, qPrintable(exported.err));
        QCOMPARE(exported.out, csv);
    }

    void lockedProgramAnswersOnlyAnError()
    {
        QVERIFY(!m_app->running());
        const QDBusMessage reply = application().call(u"CategoryNames"_s);
        QCOMPARE(reply.errorName(), QString(ScriptNames::LockedError));
        const ClientRun run = penwickctl(words(u"book --amount 5 --category 0"_s));
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
        for (const ClientRun &asked :
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
        QVERIFY(visibleTopLevels<ListWinController>().isEmpty());
    }

    void penwickctlRefusesAndWritesNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("words");
        const auto row = [](const char *name, const QString &arguments, const QString &said) {
            QTest::newRow(name) << words(arguments) << said;
        };
        row("amount nan", u"book --category 0 --amount nan"_s, u"not an amount"_s);
        row("year -1", u"book --category 0 --amount 1 --year -1"_s, u"year -1"_s);
        row("month 13", u"book --category 0 --amount 1 --month 13"_s, u"month 13"_s);
        row("date 12x", u"book --category 0 --amount 1 --date 12x"_s, u"not a whole number"_s);
        row("31 February", u"book --category 0 --amount 1 --year 2006 --month 2 --date 31"_s,
            u"day 31 is not within 1 to 28"_s);
        row("days abc", u"search 200605 --days abc"_s, u"not a list of days"_s);
        row("category name", u"book --amount 5 --category Nonsense"_s, u"unknown category 'Nonsense'"_s);
        row("list 200613", u"list 200613"_s, u"'200613' is not a month"_s);
        row("show everything", u"show everything"_s, u"name one window"_s);
        row("export 20061", u"export 20061"_s, u"'20061' is not a month (YYYYMM)"_s);
        row("not running", u"categories"_s, u"Penwick is not running"_s);
    }

    void penwickctlRefusesAndWritesNothing()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, words);
        const bool stopped = words.contains(u"not running"_s);
        if (stopped)
            m_service.reset();
        const ClientRun run = penwickctl(arguments);
        QVERIFY(run.exitCode != 0);
        QVERIFY2(run.err.contains(words), qPrintable(run.err));
        if (stopped)
            QCOMPARE(run.err.count(u'\n'), 1);
        QVERIFY(run.out.isEmpty());
        QVERIFY(QDir(m_home.dataFolder())
                    .entryList({u"*.Penwick"_s}, QDir::Files | QDir::CaseSensitive)
                    .isEmpty());
    }

    void bookingOnAFullDiskIsNotBooked()
    {
        const QStringList book = words(u"book --amount 99999999 --category 0 --year 2006 --month 5 --date 2"_s)
                                 + QStringList{u"--details"_s, u"tab\there\nand a line"_s};
        QCOMPARE(penwickctl(book).exitCode, 0);
        const QString may = m_app->ledger()->filePathForYear(2006, 5);
        const QByteArray before = readBytes(may);

        DurableFile::setFaultForTesting(DurableFile::Fault{DurableFile::Step::Write, ENOSPC,
                                                           m_home.dataFolder()});
        const QDBusMessage reply = application().call(
            u"MakeNewPaymentData"_s, QVariantMap{{u"year"_s, 2006}, {u"month"_s, 5}, {u"amount"_s, 5}});
        QCOMPARE(reply.errorName(), QString(ScriptNames::NotSavedError));
        const ClientRun full = penwickctl(book);
        DurableFile::setFaultForTesting(std::nullopt);
        QVERIFY(full.exitCode != 0);
        QVERIFY2(full.err.contains(QString::fromLocal8Bit(std::strerror(ENOSPC))), qPrintable(full.err));
        QCOMPARE(readBytes(may), before);
        QCOMPARE(m_app->ledger()->monthListForYear(2006, 5)->dataListArray().size(), 1);
        QVERIFY(!m_app->ledger()->hasUnsavedMonths());

        // Space is back: the next booking goes through, and says what it stored.
        const ClientRun again = penwickctl(book);
        QCOMPARE(again.exitCode, 0);
        QVERIFY2(again.err.contains(u"stored as 100000000"_s), qPrintable(again.err));
        const ClientRun listed = penwickctl(words(u"list 200605"_s));
        QCOMPARE(listed.out.count(u'\n'), 2);
        QVERIFY2(listed.out.contains(u"\ttab\\there\\nand a line\t"_s), qPrintable(listed.out));
    }

    // What is found is the script commands' test; here, that both desktops
    // reach it over the bus and that picking a result shows its entry.
    void desktopSearchFindsAndShowsTheEntry_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("show");
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("GNOME") << QString(ScriptNames::SearchProviderPath)
                               << u"org.gnome.Shell.SearchProvider2.GetInitialResultSet"_s
                               << QStringList{u"['Train']"_s}
                               << u"org.gnome.Shell.SearchProvider2.ActivateResult"_s
                               << QStringList{u"['Train']"_s, u"0"_s};
        QTest::newRow("KDE") << QString(ScriptNames::RunnerPath) << u"org.kde.krunner1.Match"_s
                             << QStringList{u"'Train'"_s} << u"org.kde.krunner1.Run"_s
                             << QStringList{u"''"_s};
    }

    void desktopSearchFindsAndShowsTheEntry()
    {
        QFETCH(QString, path);
        QFETCH(QString, search);
        QFETCH(QStringList, words);
        QFETCH(QString, show);
        QFETCH(QStringList, arguments);
        bookSearchedEntries(*m_app->ledger());
        const QString id = SearchResults::resultIDs(*m_app->ledger(), u"Train"_s).constFirst();
        const ClientRun found = searchCall(path, search, words);
        QVERIFY2(found.exitCode == 0, qPrintable(found.err));
        QCOMPARE(resultIDsIn(found.out), QStringList{id});

        const ClientRun shown = searchCall(path, show, QStringList{id} + arguments);
        QVERIFY2(shown.exitCode == 0, qPrintable(shown.err));
        ListWinController *list = visibleTopLevels<ListWinController>().value(0);
        QVERIFY(list);
        QCOMPARE(list->year() * 100 + list->month(), 202412);
        QCOMPARE(list->dataForSelectedRow(), SearchResults::entryForResultID(*m_app->ledger(), id));
    }

private:
    QDBusInterface application()
    {
        return QDBusInterface(ScriptNames::Service, ScriptNames::ApplicationPath,
                              ScriptNames::ApplicationInterface, QDBusConnection::sessionBus());
    }

    TestDataFolder m_home;
    PrivateBus m_bus;
    std::unique_ptr<KAppController> m_app;
    std::unique_ptr<ScriptService> m_service;
    std::unique_ptr<SearchService> m_search;
};

QTEST_MAIN(TestScriptService)
#include "tst_scriptservice.moc"
