#include "ClientRun.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ScriptService.h"

#include "app/KAppController.h"
#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "settings/Settings.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

// Three entries over two months, one of them income, and a row whose date
// cannot be read (line 9).
const QByteArray statement = "!Type:Bank\n"
                             "D05/03/2006\nT-12.50\nPBakery\nLBread\n^\n"
                             "D06/15'06\nT-40.00\nPTrain\n^\n"
                             "D31/31/2006\nT-1\n^\n"
                             "D06/20/2006\nT1500\nPSalary\n^\n";

} // namespace

// penwickctl import on a private session bus, against a running program.
class TestScriptImport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_bus.start();
        m_file = QDir(m_home.home()).filePath(u"statement.qif"_s);
        writeBytes(m_file, statement);
    }

    void init()
    {
        m_home.freshDataFolder();
        Settings().setVersion(1);
        m_app = std::make_unique<KAppController>();
        m_service = std::make_unique<ScriptService>(m_app.get(), QDBusConnection::sessionBus());
        QVERIFY2(m_service->start(), qPrintable(m_service->errorString()));
        m_app->confirmPassword();
    }

    void cleanup()
    {
        m_service.reset();
        m_app.reset();
    }

    void dryRunChangesNothing()
    {
        const ClientRun lines = penwickctl({u"import"_s, u"--dry-run"_s, m_file});
        QVERIFY2(lines.exitCode == 0, qPrintable(lines.err));
        QVERIFY2(lines.out.contains(u"line 11\t'31/31/2006' is not a date."_s), qPrintable(lines.out));
        QVERIFY(lines.out.contains(u"\tbook\t2006-06-15\t"_s));
        QVERIFY(lines.out.contains(u"Would book 3 entries (2006-05: 1, 2006-06: 2)"_s));

        const ClientRun json = penwickctl({u"import"_s, u"--dry-run"_s, u"--json"_s, u"--format"_s, u"qif"_s, m_file});
        QVERIFY2(json.exitCode == 0, qPrintable(json.err));
        const QJsonObject report = QJsonDocument::fromJson(json.out.toUtf8()).object();
        QCOMPARE(report.value(u"booked"_s).toInt(), 3);
        QCOMPARE(report.value(u"entries"_s).toArray().size(), 3);
        QCOMPARE(report.value(u"problems"_s).toArray().at(0)[u"line"_s].toInt(), 11);
        const QStringList categories = m_app->ledger()->categoryList();
        QCOMPARE(report.value(u"entries"_s).toArray().at(2)[u"category"_s].toString(), categories.constLast());

        QCOMPARE(entriesIn(2006, 5), 0);
        QCOMPARE(entriesIn(2006, 6), 0);
    }

    void importIsBookedOnceAsOneChange()
    {
        const QString ours = m_app->ledger()->categoryList().at(1);
        QSignalSpy recorded(m_app->ledger(), &KController::changeRecorded);
        const ClientRun booked = penwickctl({u"import"_s, u"--category"_s, u"bread="_s + ours, m_file});
        QVERIFY2(booked.exitCode == 0, qPrintable(booked.err));
        QVERIFY2(booked.out.contains(u"Booked 3 entries"_s), qPrintable(booked.out));
        QCOMPARE(entriesIn(2006, 5), 1);
        QCOMPARE(m_app->ledger()->monthListForYear(2006, 5)->dataListArray().constFirst()->category(), 1);
        QCOMPARE(entriesIn(2006, 6), 2);
        QCOMPARE(recorded.size(), 1);
        QCOMPARE(recorded.constFirst().constFirst().value<KController::Change>().months.size(), 2);
        QVERIFY(QFile::exists(m_app->ledger()->filePathForYear(2006, 6)));

        // Once booked, the same statement brings nothing twice.
        const ClientRun again = penwickctl({u"import"_s, m_file});
        QVERIFY2(again.out.contains(u"Skipped: 3 booked already"_s), qPrintable(again.out));
        QCOMPARE(entriesIn(2006, 6), 2);
    }

    void refusalsAreOneLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");
        QTest::newRow("no such category") << QStringList{u"--category"_s, u"Bread=Nonsense"_s} << 1
                                          << u"There is no category 'Nonsense'."_s;
        QTest::newRow("not of the format") << QStringList{u"--format"_s, u"xhb"_s} << 1
                                           << u"This is not a HomeBank file."_s;
        QTest::newRow("unknown format") << QStringList{u"--format"_s, u"xls"_s} << 2 << u"--format"_s;
        QTest::newRow("choice without =") << QStringList{u"--category"_s, u"Bread"_s} << 2 << u"SRC=DST"_s;
    }

    void refusalsAreOneLine()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        const ClientRun refused = penwickctl(QStringList{u"import"_s} + arguments + QStringList{m_file});
        QCOMPARE(refused.exitCode, exitCode);
        QVERIFY2(refused.err.contains(message), qPrintable(refused.err));
        QVERIFY(refused.out.isEmpty());
        QCOMPARE(entriesIn(2006, 6), 0);
    }

private:
    qsizetype entriesIn(int year, int month) const
    {
        return m_app->ledger()->monthListForYear(year, month)->dataListArray().size();
    }

    TestDataFolder m_home;
    PrivateBus m_bus;
    QString m_file;
    std::unique_ptr<KAppController> m_app;
    std::unique_ptr<ScriptService> m_service;
};

QTEST_MAIN(TestScriptImport)
#include "tst_scriptimport.moc"
