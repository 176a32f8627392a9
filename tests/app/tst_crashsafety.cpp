#include "LedgerGenerator.h"
#include "TestDataFolder.h"

#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "ledger/RescueFolder.h"
#include "model/DataList.h"
#include "settings/Settings.h"

#include <QFile>
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// An edit made in a window must be on disk soon after, even if the program
// never gets to quit in order.
class TestCrashSafety : public QObject
{
    Q_OBJECT

private slots:
    void editSurvivesKillTwoSecondsLater();
    void unsavedMonthIsRescuedOnSigterm();
};

void TestCrashSafety::editSurvivesKillTwoSecondsLater()
{
    TestDataFolder home;
    const QString folder = home.freshDataFolder();
    QVERIFY(LedgerGenerator().writeDataFolder(folder, 2006, 1, 40));

    QProcess app;
    app.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    app.start(QStringLiteral(EDIT_PROBE_PATH), {folder, u"2006"_s, u"5"_s, u"4321.5"_s});
    QVERIFY2(app.waitForReadyRead(10000), "the probe did not report its edit");
    QCOMPARE(app.readLine().trimmed(), "edited");

    QTest::qWait(2000);
    QCOMPARE(app.state(), QProcess::Running);
    app.kill(); // SIGKILL: no handler, no quitting in order
    QVERIFY(app.waitForFinished(5000));
    QCOMPARE(app.exitStatus(), QProcess::CrashExit);

    KController controller;
    const auto list = controller.listForYear(2006, 5);
    QVERIFY(list);
    QCOMPARE(list->dataListArray().size(), 40);
    bool found = false;
    for (const PaymentDataPtr &record : list->dataListArray())
        found = found || record->amount() == 4321.5f;
    QVERIFY2(found, "the edited amount is not in the month file");
}

void TestCrashSafety::unsavedMonthIsRescuedOnSigterm()
{
    TestDataFolder home;
    const QString folder = home.freshDataFolder();
    QVERIFY(LedgerGenerator().writeDataFolder(folder, 2006, 1, 40));
    const QString may = DataFolder::filePathForYear(folder, 2006, 5);
    QFile file(may);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    file.close();

    QProcess app;
    app.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    app.start(QStringLiteral(QUIT_PROBE_PATH), {folder, u"2006"_s, u"5"_s});
    QVERIFY2(app.waitForReadyRead(10000), "the probe did not report its unsaved month");
    QCOMPARE(app.readLine().trimmed(), "unsaved");
    app.terminate(); // SIGTERM
    QVERIFY(app.waitForFinished(10000));
    QCOMPARE(app.exitStatus(), QProcess::NormalExit);

    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), before);
    QCoreApplication::setOrganizationName(u"Penwick"_s);
    QCoreApplication::setApplicationName(u"Penwick"_s);
    const auto rescues = RescueFolder::pending(folder);
    QCOMPARE(rescues.size(), 1);
    QCOMPARE(rescues.constFirst().months, QStringList{u"Data_2006_5.Penwick"_s});

    KController controller;
    QString report;
    QVERIFY2(RescueFolder::mergeBack(controller, rescues.constFirst().folder, &report),
             qPrintable(report));
    const auto list = controller.listForYear(2006, 5);
    QCOMPARE(list->dataListArray().size(), 40);
    bool found = false;
    for (const PaymentDataPtr &record : list->dataListArray())
        found = found || record->details() == u"rescued"_s;
    QVERIFY2(found, "the rescued edit did not come back");
}

QTEST_GUILESS_MAIN(TestCrashSafety)
#include "tst_crashsafety.moc"
