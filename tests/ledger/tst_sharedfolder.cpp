#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ledger/KController.h"
#include "ledger/MonthMerge.h"
#include "ledger/SharedFolder.h"
#include "model/Notifications.h"

#include <QDir>
#include <QProcess>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

// Six entries on days 1 to 6, "e1" to "e6", amounts 100 to 600.
PaymentArray sixEntries()
{
    PaymentArray records;
    for (int day = 1; day <= 6; ++day)
        records.append(entry(2024, 3, day, u"e%1"_s.arg(day), float(100 * day)));
    return records;
}

// Changes one side of a month as a person would: "edit:N:TEXT",
// "amount:N:VALUE", "day:N:DAY", "delete:N", "add:DAY:TEXT", "memo:TEXT";
// N counts from 1 in the order given. Copies, so that the base stays.
MonthMerge::Content changed(const MonthMerge::Content &base, const QStringList &edits)
{
    MonthMerge::Content side{{}, base.summary};
    for (const PaymentDataPtr &r : base.records)
        side.records.append(std::make_shared<PaymentData>(*r));
    PaymentArray doomed;
    for (const QString &edit : edits) {
        const QStringList part = edit.split(u':');
        const auto at = [&] { return side.records.at(part.at(1).toInt() - 1); };
        if (part.at(0) == u"edit")
            at()->setDetails(part.at(2));
        else if (part.at(0) == u"amount")
            at()->setAmount(part.at(2).toFloat());
        else if (part.at(0) == u"day")
            at()->setDate(part.at(2).toInt());
        else if (part.at(0) == u"delete")
            doomed.append(at());
        else if (part.at(0) == u"add")
            side.records.append(entry(2024, 3, part.at(1).toInt(), part.at(2)));
        else if (part.at(0) == u"memo")
            side.summary = part.at(1);
    }
    for (const PaymentDataPtr &r : doomed)
        side.records.removeOne(r);
    return side;
}

QStringList sortedDetails(const PaymentArray &records)
{
    QStringList details = detailsOf(records);
    details.sort();
    return details;
}

} // namespace

class TestSharedFolder : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = m_home.freshDataFolder();
    }

    void mergeOfTwoVersions_data()
    {
        QTest::addColumn<QStringList>("ours");
        QTest::addColumn<QStringList>("theirs");
        QTest::addColumn<QStringList>("merged"); // details, sorted
        QTest::addColumn<int>("conflicts");
        QTest::addColumn<QString>("memo");
        const auto row = [](const char *name, const QString &ours, const QString &theirs,
                            const QString &merged, int conflicts, const QString &memo = u"memo"_s) {
            QTest::newRow(name) << words(ours) << words(theirs) << words(merged) << conflicts << memo;
        };
        row("no change", {}, {}, u"e1 e2 e3 e4 e5 e6"_s, 0);
        row("ours only", u"edit:2:o2 delete:4"_s, {}, u"e1 e3 e5 e6 o2"_s, 0);
        row("theirs only", {}, u"add:9:t9 memo:new"_s, u"e1 e2 e3 e4 e5 e6 t9"_s, 0, u"new"_s);
        row("different entries", u"edit:2:o2"_s, u"delete:5 add:7:t7"_s, u"e1 e3 e4 e6 o2 t7"_s, 0);
        row("different fields of one entry", u"amount:3:999"_s, u"edit:3:t3"_s,
            u"e1 e2 e3 e4 e5 e6 t3"_s, 1);
        row("same change on both", u"edit:3:x3"_s, u"edit:3:x3"_s, u"e1 e2 e4 e5 e6 x3"_s, 0);
        row("both edit one entry", u"edit:3:o3"_s, u"edit:3:t3"_s, u"e1 e2 e4 e5 e6 o3 t3"_s, 1);
        row("ours edits what theirs deleted", u"edit:4:o4"_s, u"delete:4"_s, u"e1 e2 e3 e5 e6 o4"_s, 1);
        row("theirs edits what ours deleted", u"delete:4"_s, u"day:4:20 edit:4:t4"_s,
            u"e1 e2 e3 e5 e6 t4"_s, 1);
        row("both delete one entry", u"delete:2"_s, u"delete:2"_s, u"e1 e3 e4 e5 e6"_s, 0);
        row("both book the same", u"add:8:taxi"_s, u"add:8:taxi"_s, u"e1 e2 e3 e4 e5 e6 taxi taxi"_s, 0);
        // Two fields changed is still the same entry; an entry alike in two
        // fields only is another one.
        row("two fields changed, and an addition", u"edit:2:o2 amount:2:1 add:9:new"_s, u"edit:5:t5"_s,
            u"e1 e3 e4 e6 new o2 t5"_s, 0);
        row("both change the memo", u"memo:ours"_s, u"memo:theirs"_s, u"e1 e2 e3 e4 e5 e6"_s, 0,
            u"ours\ntheirs"_s);
    }

    void mergeOfTwoVersions()
    {
        QFETCH(QStringList, ours);
        QFETCH(QStringList, theirs);
        QFETCH(QStringList, merged);
        QFETCH(int, conflicts);
        QFETCH(QString, memo);
        const MonthMerge::Content base{sixEntries(), u"memo"_s};
        const MonthMerge::Result result =
            MonthMerge::merge(base, changed(base, ours), changed(base, theirs));
        QCOMPARE(sortedDetails(result.records), merged);
        QCOMPARE(result.conflicts.size(), conflicts);
        QCOMPARE(result.summary, memo);
        QCOMPARE(result.summaryConflict, memo.contains(u'\n'));
        // Each conflict names the base entry and every side that still has it.
        for (const MonthMerge::Conflict &conflict : result.conflicts) {
            QVERIFY(conflict.base && (conflict.ours || conflict.theirs));
            QVERIFY(!conflict.ours || result.records.contains(conflict.ours));
            QVERIFY(!conflict.theirs || result.records.contains(conflict.theirs));
        }
    }

    void conflictCopiesAreKnownByName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("copy");
        QTest::newRow("month") << u"Data_2024_3.Penwick"_s << false;
        QTest::newRow("list file") << u"Data.penwick"_s << false;
        QTest::newRow("journal") << u".penwick-journal"_s << false;
        QTest::newRow("being written") << u"Data_2024_3.Penwick.a1B2c3"_s << false;
        QTest::newRow("conflicted copy") << u"Data_2024_3 (Bob's conflicted copy).Penwick"_s << true;
        QTest::newRow("sync conflict") << u"Data_2024_3.sync-conflict-20240305-101010-ABC.Penwick"_s
                                       << true;
        QTest::newRow("list file conflict") << u"Data (CONFLICT 2).penwick"_s << true;
        QTest::newRow("numbered copy") << u"Data_2024_3 (1).Penwick"_s << true;
        QTest::newRow("month 13") << u"Data_2024_13.Penwick"_s << true;
    }

    void conflictCopiesAreKnownByName()
    {
        QFETCH(QString, name);
        QFETCH(bool, copy);
        QCOMPARE(SharedFolder::isConflictCopy(name), copy);
    }

    void changesFromAnotherComputerAreTaken_data()
    {
        QTest::addColumn<int>("month");
        QTest::addColumn<QStringList>("ours"); // "edit:N:TEXT" of the cached month
        QTest::addColumn<QStringList>("theirs");
        QTest::addColumn<QStringList>("result"); // details, sorted
        QTest::addColumn<QString>("told");       // in the notice; empty: no notice
        const auto row = [](const char *name, int month, const QString &ours, const QString &theirs,
                            const QString &result, const QString &told = {}) {
            QTest::newRow(name) << month << words(ours) << words(theirs) << words(result) << told;
        };
        row("unedited month reloads", 3, {}, u"edit 2024 3 2 t2"_s, u"e1 e3 e4 e5 e6 t2"_s);
        row("different entries merge", 3, u"edit:2:o2"_s, u"delete 2024 3 5 add 2024 3 9 t9"_s,
            u"e1 e3 e4 e6 o2 t9"_s);
        row("same entry keeps both", 3, u"edit:3:o3"_s, u"edit 2024 3 3 t3"_s,
            u"e1 e2 e4 e5 e6 o3 t3"_s, u"o3"_s);
        row("new month file", 4, {}, u"add 2024 4 1 n1"_s, u"n1"_s);
        row("month file removed", 3, {}, u"remove 2024 3"_s, u"e1 e2 e3 e4 e5 e6"_s, u"removed"_s);
    }

    void changesFromAnotherComputerAreTaken()
    {
        QFETCH(int, month);
        QFETCH(QStringList, ours);
        QFETCH(QStringList, theirs);
        QFETCH(QStringList, result);
        QFETCH(QString, told);
        writeMonthFile(m_folder, 2024, 3, sixEntries());
        KController controller;
        controller.readListPreference();
        controller.watchSharedFolder();
        const auto list = controller.monthListForYear(2024, month);
        for (const QString &edit : ours) {
            const QStringList part = edit.split(u':');
            list->dataListArray().at(part.at(1).toInt() - 1)->setDetails(part.at(2));
        }
        QSignalSpy redrawn(Notifications::instance(), &Notifications::dataListHasChanged);
        QSignalSpy expired(&controller, &KController::changesExpired);
        QSignalSpy notices(&controller, &KController::sharedFolderNotice);

        QVERIFY(otherComputer(theirs));
        if (told.isEmpty()) {
            QTRY_COMPARE(sortedDetails(list->dataListArray()), result);
            QVERIFY(redrawn.count() > 0);
            QVERIFY(expired.count() > 0);
            // Merged or not, the month is what its file will hold.
            QVERIFY(controller.saveAllEditedData());
            QCOMPARE(savedDetails(month), result);
            QTest::qWait(600);
            QCOMPARE(notices.count(), 0);
        } else {
            QTRY_COMPARE(notices.count(), 1);
            QCOMPARE(sortedDetails(list->dataListArray()), result);
            const QString notice = notices.at(0).at(0).toString() + notices.at(0).at(1).toString();
            QVERIFY2(notice.contains(told), qPrintable(notice));
            QVERIFY2(notice.contains(u"2024"_s), qPrintable(notice));
        }
        if (told == u"o3") {
            // Both versions named; the month, now holding both, is saved as any change.
            QVERIFY(notices.at(0).at(1).toString().contains(u"t3"_s));
            QVERIFY(list->isEdited());
            QVERIFY(controller.saveAllEditedData());
            QCOMPARE(savedDetails(3), result);
        }
    }

    void ownSavesAreNotOutsideChanges()
    {
        writeMonthFile(m_folder, 2024, 3, sixEntries());
        KController controller;
        controller.readListPreference();
        controller.watchSharedFolder();
        const auto list = controller.monthListForYear(2024, 3);
        QSignalSpy expired(&controller, &KController::changesExpired);
        QSignalSpy notices(&controller, &KController::sharedFolderNotice);
        // Edits saved at once and by the timer, a booking, a resave of everything,
        // and a change of the lists: all of them our own.
        for (int i = 1; i <= 3; ++i) {
            list->dataListArray().at(i)->setDetails(u"ours%1"_s.arg(i));
            if (i == 2)
                QVERIFY(controller.saveAllEditedData());
            QTest::qWait(150);
        }
        QVERIFY(controller.addData({entry(2024, 3, 20, u"booked"_s)}));
        QVERIFY(controller.addData({entry(2024, 5, 1, u"may"_s)}));
        QTest::qWait(1200);
        controller.resaveAllDataFile();
        QVERIFY(controller.convertStoredData({{}, {}, {{u"CategoryList"_s, QVariantList{u"Food"_s, u"Pay"_s}}}}));
        QTest::qWait(700);
        QCOMPARE(expired.count(), 0);
        QCOMPARE(notices.count(), 0);
        QCOMPARE(detailsOf(list->dataListArray()),
                 (QStringList{u"e1"_s, u"ours1"_s, u"ours2"_s, u"ours3"_s, u"e5"_s, u"e6"_s,
                              u"booked"_s}));
    }

    void conflictCopiesAreToldOnce()
    {
        writeMonthFile(m_folder, 2024, 3, sixEntries());
        writeBytes(QDir(m_folder).filePath(u"Data_2024_3 (conflicted copy).Penwick"_s), "x");
        KController controller;
        controller.readListPreference();
        controller.watchSharedFolder();
        QSignalSpy notices(&controller, &KController::sharedFolderNotice);
        QVERIFY(notices.wait());
        QVERIFY(notices.at(0).at(1).toString().contains(u"(conflicted copy)"_s));
        QVERIFY(!notices.at(0).at(1).toString().contains(u"Data_2024_3.Penwick"_s));

        // Later copies are told as they come; the earlier one not again.
        QVERIFY(otherComputer({u"touch"_s, u"Data_2024_3 (1).Penwick"_s, u"edit"_s, u"2024"_s, u"3"_s,
                               u"1"_s, u"t1"_s}));
        QVERIFY(notices.wait());
        QVERIFY(notices.at(1).at(1).toString().contains(u"Data_2024_3 (1).Penwick"_s));
        QVERIFY(!notices.at(1).at(1).toString().contains(u"(conflicted copy)"_s));
        QVERIFY(otherComputer({u"edit"_s, u"2024"_s, u"3"_s, u"2"_s, u"t2"_s}));
        QTRY_COMPARE(controller.monthListForYear(2024, 3)->dataListArray().at(1)->details(), u"t2"_s);
        QTest::qWait(500);
        QCOMPARE(notices.count(), 2);
        QVERIFY(QFile::exists(QDir(m_folder).filePath(u"Data_2024_3 (conflicted copy).Penwick"_s)));
    }

    void listFileChangedOutside_data()
    {
        QTest::addColumn<QString>("categories");
        QTest::addColumn<bool>("rearranged");
        QTest::newRow("renamed") << u"Groceries,Salary"_s << false;
        QTest::newRow("moved") << u"Salary,Food"_s << true;
    }

    void listFileChangedOutside()
    {
        QFETCH(QString, categories);
        QFETCH(bool, rearranged);
        KController controller;
        QVERIFY(controller.convertStoredData({{}, {}, {{u"CategoryList"_s, QVariantList{u"Food"_s, u"Salary"_s}}}}));
        controller.watchSharedFolder();
        QSignalSpy updated(Notifications::instance(), &Notifications::listPreferenceHasUpDated);
        QSignalSpy notices(&controller, &KController::sharedFolderNotice);
        QSignalSpy expired(&controller, &KController::changesExpired);
        QVERIFY(otherComputer({u"categories"_s, categories}));
        QTRY_COMPARE(controller.categoryList().join(u','), categories);
        QCOMPARE(updated.count(), 1);
        QTest::qWait(500);
        QCOMPARE(notices.count(), int(rearranged));
        QCOMPARE(expired.count(), int(rearranged));
    }

private:
    QStringList savedDetails(int month) const
    {
        QStringList details = detailsOnDisk(m_folder, 2024, month);
        details.sort();
        return details;
    }

    // Runs the other computer with the commands; true when it did them.
    bool otherComputer(const QStringList &commands) const
    {
        QProcess peer;
        peer.start(QStringLiteral(FOLDER_PEER), QStringList{m_folder} + commands);
        return peer.waitForFinished(10000) && peer.exitStatus() == QProcess::NormalExit
               && peer.exitCode() == 0;
    }

    TestDataFolder m_home;
    QString m_folder;
};

QTEST_GUILESS_MAIN(TestSharedFolder)
#include "tst_sharedfolder.moc"
