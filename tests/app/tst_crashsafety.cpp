#include "LedgerGenerator.h"
#include "ProbeRun.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "ledger/RescueFolder.h"
#include "model/MonthDataList.h"
#include "model/PaymentData.h"
#include "settings/Settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <chrono>
#include <random>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace {

// What a restarted program shows of May and June 2006.
struct Shown
{
    QList<float> mayAmounts;
    QString mayMemo;
    qsizetype juneCount = 0;
    bool damaged = false;
};

Shown restart()
{
    KController controller;
    controller.replayChangeJournal(); // a torn last record is no failure here
    Shown shown;
    for (int month : {5, 6}) {
        shown.damaged = shown.damaged || controller.unreadableReason(2006, month).has_value();
        const auto list = controller.monthListForYear(2006, month);
        if (month == 6) {
            shown.juneCount = list->dataListArray().size();
            continue;
        }
        for (const PaymentDataPtr &record : list->dataListArray())
            shown.mayAmounts.append(record->amount());
        shown.mayMemo = list->summary();
    }
    return shown;
}

} // namespace

// A change made in a window is on the disk once it has returned, even if the
// program never gets to quit in order.
class TestCrashSafety : public QObject
{
    Q_OBJECT

private slots:
    void changeSurvivesAKillAtAnyMoment_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"amount", "memo", "delete", "move"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
    }

    // The probe makes one change and is killed 0 to 20 ms later, fifty times: a
    // change that returned is there after a restart; one cut short is wholly
    // absent; a month is never damaged.
    void changeSurvivesAKillAtAnyMoment()
    {
        QFETCH(QString, kind);
        TestDataFolder home;
        const QString folder = home.freshDataFolder();
        // Enough entries for fifty deletions.
        QVERIFY(LedgerGenerator().writeDataFolder(folder, 2006, 1, 60));
        std::mt19937 random(20061105);
        std::uniform_int_distribution<int> delayUs(0, 20000);
        Shown before = restart();
        for (int round = 0; round < 50; ++round) {
            const QString value = kind == u"memo" ? u"memo %1"_s.arg(round) : QString::number(9000 + round);
            QProcess app;
            app.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            app.start(QStringLiteral(EDIT_PROBE_PATH), {folder, kind, value});
            QVERIFY2(app.waitForReadyRead(kProbeWaitMs), "the probe did not get ready");
            QCOMPARE(app.readLine().trimmed(), "ready");
            app.write("go\n");
            QVERIFY(app.waitForBytesWritten(1000));
            // Every other round the clock starts once the change has returned;
            // otherwise the kill may also land before or during it.
            const bool afterReturn = round % 2 == 0;
            if (afterReturn) {
                QVERIFY2(app.waitForReadyRead(kProbeWaitMs), "the probe did not report its change");
                QCOMPARE(app.readLine().trimmed(), "edited");
            }
            std::this_thread::sleep_for(std::chrono::microseconds(delayUs(random)));
            app.kill(); // SIGKILL: no handler, no quitting in order
            QVERIFY(app.waitForFinished(kProbeWaitMs));
            const bool done = afterReturn || app.readAllStandardOutput().contains("edited");

            const Shown after = restart();
            QVERIFY2(!after.damaged, qPrintable(u"round %1"_s.arg(round)));
            bool changed = false;
            bool unchanged = false;
            if (kind == u"amount") {
                changed = after.mayAmounts.contains(value.toFloat());
                unchanged = after.mayAmounts == before.mayAmounts;
            } else if (kind == u"memo") {
                changed = after.mayMemo == value;
                unchanged = after.mayMemo == before.mayMemo;
            } else {
                const qsizetype gone = before.mayAmounts.size() - after.mayAmounts.size();
                const qsizetype arrived = after.juneCount - before.juneCount;
                changed = gone == 1 && arrived == (kind == u"move" ? 1 : 0);
                unchanged = gone == 0 && arrived == 0;
            }
            QVERIFY2(changed || (!done && unchanged),
                     qPrintable(u"round %1: the change %2"_s.arg(round).arg(done ? "was lost" : "was torn")));
            before = after;
        }
    }

    void unsavedMonthOutlivesSigterm_data()
    {
        QTest::addColumn<bool>("journalWorks");
        QTest::newRow("kept in the journal") << true;
        QTest::newRow("rescued beside it") << false;
    }

    // A month the disk does not take when the program is told to stop comes back
    // at the next start from the change journal, or, when that could not be
    // written either, is offered from a rescue folder.
    void unsavedMonthOutlivesSigterm()
    {
        QFETCH(bool, journalWorks);
        TestDataFolder home;
        const QString folder = home.freshDataFolder();
        QVERIFY(LedgerGenerator().writeDataFolder(folder, 2006, 1, 40));
        const QString may = DataFolder::filePathForYear(folder, 2006, 5);
        const QByteArray before = readBytes(may);
        KController controller;
        if (!journalWorks)
            QVERIFY(QDir(folder).mkdir(QFileInfo(controller.changeJournalPath()).fileName()));

        QProcess app;
        app.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        app.start(QStringLiteral(QUIT_PROBE_PATH), {folder, u"2006"_s, u"5"_s});
        QVERIFY2(app.waitForReadyRead(kProbeWaitMs), "the probe did not report its unsaved month");
        QCOMPARE(app.readLine().trimmed(), "unsaved");
        app.terminate(); // SIGTERM
        QVERIFY(app.waitForFinished(kProbeWaitMs));
        QCOMPARE(app.exitStatus(), QProcess::NormalExit);

        QCOMPARE(readBytes(may), before);
        QCoreApplication::setOrganizationName(u"Penwick"_s);
        QCoreApplication::setApplicationName(u"Penwick"_s);
        const auto rescues = RescueFolder::pending(folder);
        QCOMPARE(rescues.size(), journalWorks ? 0 : 1);
        if (journalWorks) {
            QString problem;
            QVERIFY2(controller.replayChangeJournal(&problem), qPrintable(problem));
        } else {
            QCOMPARE(rescues.constFirst().months, QStringList{u"Data_2006_5.Penwick"_s});
            QString report;
            QVERIFY2(RescueFolder::mergeBack(controller, rescues.constFirst().folder, &report),
                     qPrintable(report));
        }
        const auto list = controller.listForYear(2006, 5);
        QCOMPARE(list->dataListArray().size(), 40);
        bool found = false;
        for (const PaymentDataPtr &record : list->dataListArray())
            found = found || record->details() == u"rescued"_s;
        QVERIFY2(found, "the unsaved edit did not come back");
        QVERIFY(!list->isEdited());
    }
};

QTEST_GUILESS_MAIN(TestCrashSafety)
#include "tst_crashsafety.moc"
