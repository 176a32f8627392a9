#include "LunchMonth.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ledger/KController.h"
#include "ledger/RescueFolder.h"
#include "model/ModifMonthList.h"
#include "model/Notifications.h"
#include "model/YearDataList.h"
#include "settings/Settings.h"
#include "storage/DurableFile.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QStandardPaths>

#include <cerrno>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(DurableFile::Step)

enum class Edit { Cell, Booking, Delete, Move, Memo };
Q_DECLARE_METATYPE(Edit)

class TestKController : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = m_home.freshDataFolder();
    }

    void dataFolderFollowsTheSetting()
    {
        KController controller;
        QCOMPARE(controller.dataFolderPath(), m_folder);

        // Without a chosen folder, the first start makes the one in Documents,
        // with its lists, and names it in the settings; once.
        Settings().setDataPath(QString());
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        QVERIFY(documents.startsWith(m_home.home()));
        const QString expected = QDir(documents).filePath(u"PenwickData"_s);
        QCOMPARE(controller.dataFolderPath(), m_folder); // cached until released or set up
        QVERIFY(controller.setUpFirstStart());
        QCOMPARE(Settings().version(), 1);
        QCOMPARE(Settings().dataPath(), expected);
        QVERIFY(QFile::exists(expected + u"/Data.penwick"_s));
        QVERIFY(!controller.setUpFirstStart());
        QCOMPARE(controller.filePathForYear(2006, 5), expected + u"/Data_2006_5.Penwick"_s);
    }

    void monthFileNamesParse_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("year"); // 0: not a month file
        QTest::addColumn<int>("month");
        QTest::newRow("one-digit month") << u"/x/Data_2006_5.Penwick"_s << 2006 << 5;
        QTest::newRow("two-digit month") << u"Data_2006_11.Penwick"_s << 2006 << 11;
        QTest::newRow("padded month") << u"Data_2006_05.Penwick"_s << 2006 << 5;
        QTest::newRow("any extension") << u"Data_1999_12.txt"_s << 1999 << 12;
        QTest::newRow("list file") << u"/x/Data.penwick"_s << 0 << 0;
        QTest::newRow("month 13") << u"Data_2006_13.Penwick"_s << 0 << 0;
        QTest::newRow("month 0") << u"Data_2006_0.Penwick"_s << 0 << 0;
        QTest::newRow("trailing text") << u"Data_2006_5 copy.Penwick"_s << 0 << 0;
        QTest::newRow("no month") << u"Data_2006.Penwick"_s << 0 << 0;
    }

    void monthFileNamesParse()
    {
        QFETCH(QString, path);
        QFETCH(int, year);
        QFETCH(int, month);
        const auto parsed = DataFolder::yearMonthFromPath(path);
        QCOMPARE(parsed.has_value(), year != 0);
        if (parsed)
            QCOMPARE(QList<int>({parsed->year, parsed->month}), QList<int>({year, month}));
    }

    void listsAreCachedAndReadOnce()
    {
        writeMonthFile(m_folder, 2006, 5, {entry(2006, 5, 3, u"Lunch"_s)}, u"memo"_s);
        writeMonthFile(m_folder, 2006, 12, {entry(2006, 12, 1, u"december"_s, 50, 1)});
        KController controller;
        const auto first = controller.listForYear(2006, 5);
        QCOMPARE(detailsOf(first->dataListArray()), QStringList{u"Lunch"_s});
        QCOMPARE(static_cast<MonthDataList *>(first.get())->summary(), u"memo"_s);
        QVERIFY(!first->isEdited());

        // A later change of the file is not seen: the month was read once.
        writeMonthFile(m_folder, 2006, 5, {});
        QCOMPARE(controller.listForYear(2006, 5), first);
        // A month without a file is empty, and nothing is written for it.
        QVERIFY(controller.listForYear(2006, 6)->dataListArray().isEmpty());
        QVERIFY(!QFile::exists(controller.filePathForYear(2006, 6)));

        // Month 0 is the year, gathered from the cached months.
        const auto year = controller.listForYear(2006, 0);
        QVERIFY(dynamic_cast<YearDataList *>(year.get()));
        QCOMPARE(detailsOf(year->dataListArray()), (QStringList{u"Lunch"_s, u"december"_s}));
        QCOMPARE(year->grandTotal(), 150.0f);
        QCOMPARE(controller.listForYear(2006, 12)->dataListArray().constFirst(),
                 year->dataListArray().constLast());

        // Months and years no file can be named for.
        QTest::ignoreMessage(QtWarningMsg, "month:13 is not available!!");
        QVERIFY(!controller.listForYear(2006, 13));
        QTest::ignoreMessage(QtWarningMsg, "month:-1 is not available!!");
        QVERIFY(!controller.listForYear(2006, -1));
        for (int y : {-1, 0, 10000, 2147483647})
            QVERIFY(!controller.listForYear(y, 2));
        QVERIFY(!controller.readDataFromPath(m_folder + u"/Data_-1_2.Penwick"_s));
    }

    void recordsOfAnotherMonthMoveOnLoad()
    {
        writeMonthFile(m_folder, 2006, 5,
                       {entry(2006, 5, 1, u"may"_s), entry(2006, 6, 2, u"june"_s),
                        entry(2007, 5, 3, u"next year"_s)});
        // A file of May 2007 that hands a record back to May 2006 must not make
        // the two months read each other without end.
        writeMonthFile(m_folder, 2007, 5, {entry(2006, 5, 4, u"back"_s), entry(2007, 5, 5, u"stays"_s)});
        const QByteArray mayBytes = readBytes(m_home.filePath(u"Data_2006_5.Penwick"_s));

        KController controller;
        const auto may = controller.monthListForYear(2006, 5);
        QCOMPARE(detailsOf(may->dataListArray()), (QStringList{u"may"_s, u"back"_s}));
        QVERIFY(!may->isEdited()); // the file keeps its records until May is written
        const auto june = controller.monthListForYear(2006, 6);
        QCOMPARE(detailsOf(june->dataListArray()), QStringList{u"june"_s});
        QVERIFY(june->isEdited());
        QCOMPARE(detailsOf(controller.listForYear(2007, 5)->dataListArray()),
                 (QStringList{u"next year"_s, u"stays"_s}));
        QCOMPARE(readBytes(m_home.filePath(u"Data_2006_5.Penwick"_s)), mayBytes);
    }

    void readingFindsEveryMonthFileOfTheFolder()
    {
        writeMonthFile(m_folder, 2005, 2, {entry(2005, 2, 1, u"a"_s)});
        writeMonthFile(m_folder, 2006, 11, {entry(2006, 11, 1, u"ours"_s)});
        writeBytes(m_home.filePath(u"Data.penwick"_s), "not a month");
        writeBytes(m_home.filePath(u"notes.txt"_s), "hello");
        QTemporaryDir elsewhere;
        writeMonthFile(elsewhere.path(), 2006, 11, {entry(2006, 11, 1, u"theirs"_s)});

        KController controller;
        // A month file opened from elsewhere shows the data folder's month.
        const auto list = controller.readDataFromPath(elsewhere.filePath(u"Data_2006_11.Penwick"_s));
        QCOMPARE(detailsOf(list->dataListArray()), QStringList{u"ours"_s});
        QVERIFY(!controller.readDataFromPath(elsewhere.filePath(u"Data.penwick"_s)));

        QSignalSpy unreadable(&controller, &KController::monthFileUnreadable);
        controller.readAllData();
        QCOMPARE(unreadable.size(), 0);
        // Both months were loaded: deleting the files now changes nothing.
        QFile::remove(m_home.filePath(u"Data_2005_2.Penwick"_s));
        QCOMPARE(controller.listForYear(2005, 2)->dataListArray().size(), 1);
    }

    void savingWritesEditedMonthsOnly()
    {
        writeMonthFile(m_folder, 2006, 4, {entry(2006, 4, 1, u"april"_s)});
        KController controller;
        controller.monthListForYear(2006, 4);
        const auto may = controller.monthListForYear(2006, 5);
        QFile::remove(m_home.filePath(u"Data_2006_4.Penwick"_s));

        may->addData({entry(2006, 5, 2, u"new"_s)});
        QSignalSpy before(&controller, &KController::aboutToSaveAllEditedData);
        controller.saveAllEditedData();
        QCOMPARE(before.size(), 1);
        QVERIFY(!may->isEdited());
        QVERIFY(!QFile::exists(m_home.filePath(u"Data_2006_4.Penwick"_s))); // April was clean
        QCOMPARE(onDisk(2006, 5), QStringList{u"new"_s});

        // An edit reaches the disk shortly after, without being asked.
        may->addData({entry(2006, 5, 3, u"soon"_s)});
        QTRY_COMPARE_WITH_TIMEOUT(onDisk(2006, 5), (QStringList{u"new"_s, u"soon"_s}), 3000);

        // Released with a save, the edits stay; without, they go.
        may->addData({entry(2006, 5, 4, u"kept"_s)});
        controller.releaseAllDataWithSave(true);
        const auto again = controller.monthListForYear(2006, 5);
        QVERIFY(again != may);
        QCOMPARE(again->dataListArray().size(), 3);
        again->addData({entry(2006, 5, 5, u"journaled"_s)});
        controller.releaseAllDataWithSave(false);
        QCOMPARE(controller.monthListForYear(2006, 5)->dataListArray().size(), 3);
        // ...but not lost: the change journal brings them back, as at a start
        // after a crash, writes them and is removed.
        controller.releaseAllDataWithSave(false);
        QString problem;
        QVERIFY2(controller.replayChangeJournal(&problem), qPrintable(problem));
        QCOMPARE(onDisk(2006, 5), (QStringList{u"new"_s, u"soon"_s, u"kept"_s, u"journaled"_s}));
        QVERIFY(!QFile::exists(controller.changeJournalPath()));

        // A change that reported nothing (a memo) is journaled before its month
        // is written, so that a replay never turns the file back.
        const auto may2 = controller.monthListForYear(2006, 5);
        may2->dataListArray().constFirst()->setDetails(u"first"_s);
        may2->setSummary(u"unreported"_s);
        may2->setIsEdited(true);
        QVERIFY(controller.writeDataListToFile(may2.get()));
        controller.releaseAllDataWithSave(false);
        QVERIFY(controller.replayChangeJournal());
        QCOMPARE(controller.monthListForYear(2006, 5)->summary(), u"unreported"_s);
    }

    void resaveWritesEveryMonth()
    {
        // A clean month written by another program in another (valid) form: its
        // records in an immutable array object.
        const QByteArray foreign = QByteArray::fromHex(LunchMonthArrayHex);
        const QString path = m_home.filePath(u"Data_2006_5.Penwick"_s);
        writeBytes(path, foreign);

        KController controller;
        controller.resaveAllDataFile();
        const QByteArray bytes = readBytes(path);
        QVERIFY(bytes.contains("NSMutableArray"));
        const auto reread = MonthFile::decode(bytes, nullptr);
        QCOMPARE(detailsOf(reread->dataListArray()), QStringList{u"Lunch"_s});
        QCOMPARE(reread->summary(), u"memo"_s);
    }

    void failedSaveKeepsTheMonthAndIsRetried_data()
    {
        QTest::addColumn<DurableFile::Step>("step");
        QTest::addColumn<int>("error");
        QTest::newRow("open") << DurableFile::Step::Open << EROFS;
        QTest::newRow("write") << DurableFile::Step::Write << ENOSPC;
        QTest::newRow("sync") << DurableFile::Step::SyncFile << ENOSPC;
        QTest::newRow("rename") << DurableFile::Step::Rename << EROFS;
    }

    void failedSaveKeepsTheMonthAndIsRetried()
    {
        QFETCH(DurableFile::Step, step);
        QFETCH(int, error);
        KController controller;
        QVERIFY(controller.addData({entry(2006, 5, 2, u"precious"_s)}));
        const QString path = controller.filePathForYear(2006, 5);
        const QByteArray before = readBytes(path);
        const auto may = controller.monthListForYear(2006, 5);
        QSignalSpy failed(&controller, &KController::monthFileNotWritten);
        QSignalSpy unsaved(&controller, &KController::unsavedMonthsChanged);
        const auto faultGuard = qScopeGuard([] { DurableFile::setFaultForTesting(std::nullopt); });
        DurableFile::setFaultForTesting(DurableFile::Fault{step, error, m_folder});
        const QString systemWords = QString::fromLocal8Bit(std::strerror(error));

        // Booked means on the disk: a booking that cannot be written is undone.
        QString why;
        QVERIFY(!controller.addData({entry(2006, 5, 3, u"not booked"_s)}, &why));
        QVERIFY2(why.contains(systemWords), qPrintable(why));
        QCOMPARE(detailsOf(may->dataListArray()), QStringList{u"precious"_s});
        QVERIFY(failed.isEmpty());

        // An edit stays in memory, edited, and is counted among the unsaved.
        may->dataListArray().constFirst()->setDetails(u"edited"_s);
        QVERIFY(!controller.saveAllEditedData());
        QVERIFY(may->isEdited());
        QCOMPARE(failed.size(), 1);
        QCOMPARE(failed.at(0).at(0).toString(), path);
        QCOMPARE(controller.unsavedMonths().size(), 1);
        QCOMPARE(controller.unsavedMonths().constFirst().month, 5);
        QVERIFY(controller.unsavedMonths().constFirst().reason.contains(systemWords));
        QCOMPARE(readBytes(path), before);
        // The journal has the edit meanwhile.
        QCOMPARE(QDir(m_folder).entryList(QDir::Files | QDir::Hidden),
                 (QStringList{u".penwick-journal"_s, u"Data_2006_5.Penwick"_s}));
        QVERIFY(controller.unsavedMonthsAreJournaled());
        QVERIFY(!controller.releaseAllDataWithSave(true));

        // Once the disk takes it again, the next try saves it.
        DurableFile::setFaultForTesting(std::nullopt);
        QVERIFY(controller.saveAllEditedData());
        QVERIFY(controller.unsavedMonths().isEmpty());
        QCOMPARE(unsaved.size(), 2);
        QCOMPARE(onDisk(2006, 5), QStringList{u"edited"_s});
        QCOMPARE(QDir(m_folder).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"Data_2006_5.Penwick"_s});
    }

    void listFileThatCannotBeReadStopsBookings()
    {
        const QString path = m_folder + u"/Data.penwick"_s;
        writeBytes(path, "<plist><string>Food</string></plist>");
        KController controller;
        QSignalSpy reported(&controller, &KController::listFileUnreadable);
        controller.readListPreference();
        QCOMPARE(reported.size(), 1);
        QString why;
        QVERIFY(!controller.addData({entry(2006, 5, 2, u"refused"_s)}, &why));
        QVERIFY2(why.contains(u"list file"_s), qPrintable(why));
        QVERIFY(!QFile::exists(controller.filePathForYear(2006, 5)));
        QCOMPARE(readBytes(path), QByteArray("<plist><string>Food</string></plist>"));

        // Mended, the lists come back and booking works again; the income rule
        // of every list follows the controller's names.
        QFile::remove(path);
        controller.readListPreference();
        QCOMPARE(reported.size(), 2);
        QVERIFY(reported.at(1).at(1).toString().isEmpty());
        QCOMPARE(controller.categoryList().constLast(), u"Income"_s);
        QCOMPARE(LedgerController::incomeCategoryIndex(), controller.categoryList().size() - 1);
        QVERIFY(controller.addData({entry(2006, 5, 2, u"booked"_s)}));
    }

    void unsavedMonthsAreRescuedAndComeBack()
    {
        KController controller;
        QVERIFY(controller.addData({entry(2006, 5, 2, u"may"_s), entry(2006, 6, 2, u"june"_s)}));
        DurableFile::setFaultForTesting(DurableFile::Fault{DurableFile::Step::Write, ENOSPC, m_folder});
        controller.monthListForYear(2006, 5)->dataListArray().constFirst()->setDetails(u"may, edited"_s);
        controller.monthListForYear(2006, 6)->dataListArray().constFirst()->setDetails(u"june, edited"_s);
        QVERIFY(!controller.saveAllEditedData());
        const auto rescue = RescueFolder::save(controller);
        DurableFile::setFaultForTesting(std::nullopt);
        QVERIFY(rescue);
        QVERIFY(!rescue->startsWith(m_folder));

        // A new run: June's file changed meanwhile, May's did not.
        QVERIFY(controller.releaseAllDataWithSave(false));
        QVERIFY(controller.addData({entry(2006, 6, 9, u"june, elsewhere"_s)}));
        const auto pending = RescueFolder::pending(controller.dataFolderPath());
        QCOMPARE(pending.size(), 1);
        QCOMPARE(pending.constFirst().months,
                 (QStringList{u"Data_2006_5.Penwick"_s, u"Data_2006_6.Penwick"_s}));
        QString report;
        QVERIFY2(RescueFolder::mergeBack(controller, *rescue, &report), qPrintable(report));
        QVERIFY(!QFileInfo::exists(*rescue));
        QVERIFY(RescueFolder::pending(controller.dataFolderPath()).isEmpty());
        QCOMPARE(onDisk(2006, 5), QStringList{u"may, edited"_s});
        // Both sides of a month changed on both are kept.
        QCOMPARE(onDisk(2006, 6), (QStringList{u"june"_s, u"june, edited"_s, u"june, elsewhere"_s}));
    }

    void unreadableFileIsNeverOverwritten()
    {
        const QString path = m_home.filePath(u"Data_2006_5.Penwick"_s);
        const QByteArray garbage("\x04\x0bstreamtyped\x81\xe8\x03\x84\x01@\x84\x84\x84", 21);
        writeBytes(path, garbage);
        writeMonthFile(m_folder, 2006, 6, {entry(2006, 6, 1, u"june"_s)});

        KController controller;
        QSignalSpy unreadable(&controller, &KController::monthFileUnreadable);
        QSignalSpy notWritten(&controller, &KController::monthFileNotWritten);
        const auto may = controller.monthListForYear(2006, 5);
        QVERIFY(may->isReadOnly());
        QCOMPARE(unreadable.size(), 1);
        QCOMPARE(unreadable.at(0).at(0).toString(), path);

        // Nothing reaches the file, and the edit is reported, not dropped.
        may->addData({entry(2006, 5, 2, u"lost?"_s)});
        controller.saveAllEditedData();
        QCOMPARE(readBytes(path), garbage);
        QCOMPARE(notWritten.size(), 1);

        // No entry can be moved into that month either; the others work.
        const auto june = controller.monthListForYear(2006, 6);
        const PaymentDataPtr mover = june->dataListArray().constFirst();
        mover->setMonth(5);
        controller.moveData(mover, june.get());
        QVERIFY(june->dataListArray().contains(mover));
        QCOMPARE(notWritten.size(), 2);
        QVERIFY(controller.writeDataListToFile(june.get()));

        // Nor can a booking reach it, and the rest of that booking stays out too.
        QString why;
        QVERIFY(!controller.addData({entry(2006, 5, 1, u"may"_s), entry(2006, 8, 1, u"august"_s)},
                                    &why));
        QVERIFY2(why.contains(u"could not be read"_s), qPrintable(why));
        QCOMPARE(controller.listForYear(2006, 8)->dataListArray().size(), 1);
        QCOMPARE(readBytes(path), garbage);
    }

    void addingWritesAtOnceDeletingAndMovingWait()
    {
        KController controller;
        const auto doomed = entry(2006, 5, 9, u"doomed"_s);
        const auto mover = entry(2006, 5, 10, u"mover"_s);
        QVERIFY(controller.addData({doomed, mover, entry(2006, 6, 1, u"june"_s),
                                    entry(2006, 5, 11, u"stays"_s)}));
        QCOMPARE(onDisk(2006, 5), (QStringList{u"doomed"_s, u"mover"_s, u"stays"_s}));
        QCOMPARE(onDisk(2006, 6), QStringList{u"june"_s});
        const QByteArray written = readBytes(controller.filePathForYear(2006, 5));

        controller.deleteData({doomed});
        const auto may = controller.monthListForYear(2006, 5);
        QVERIFY(may->isEdited());
        QCOMPARE(readBytes(controller.filePathForYear(2006, 5)), written);

        // A move to the month the record is in already changes nothing.
        controller.moveData(mover, may.get());
        QCOMPARE(may->dataListArray().size(), 2);
        mover->setMonth(6);
        controller.moveData(mover, may.get());
        QCOMPARE(detailsOf(may->dataListArray()), QStringList{u"stays"_s});
        QCOMPARE(detailsOf(controller.listForYear(2006, 6)->dataListArray()),
                 (QStringList{u"june"_s, u"mover"_s}));
        QCOMPARE(onDisk(2006, 6), QStringList{u"june"_s});
        controller.saveAllEditedData();
        QCOMPARE(onDisk(2006, 6), (QStringList{u"june"_s, u"mover"_s}));
    }

    void editsAddressTheRecordsCurrentMonth()
    {
        KController controller;
        const auto r = entry(2006, 5, 9, u"r"_s);
        controller.addData({r});
        QSignalSpy changed(Notifications::instance(), &Notifications::dataListHasChanged);
        r->setAmount(5);
        QCOMPARE(changed.at(0).at(0).value<DataList *>(), controller.listForYear(2006, 5).get());
        r->setMonth(6); // the new month's list hears of it, without holding it yet
        QCOMPARE(changed.at(1).at(0).value<DataList *>(), controller.listForYear(2006, 6).get());
        QVERIFY(controller.listForYear(2006, 5)->dataListArray().contains(r));
    }

    void changesAreRecordedAndRestored_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QString>("changed"); // May's details and memo | June's
        QTest::newRow("cell") << Edit::Cell << u"lunch train | "_s;
        QTest::newRow("booking") << Edit::Booking << u"rent lunch bus | "_s;
        QTest::newRow("delete") << Edit::Delete << u"bus | "_s;
        QTest::newRow("move") << Edit::Move << u"bus | rent"_s;
        QTest::newRow("memo") << Edit::Memo << u"rent bus memo: car | "_s;
    }

    // Each kind of change is recorded as one, under its label, and taking it
    // back and making it again puts every month it touched where it was, on the
    // disk too.
    void changesAreRecordedAndRestored()
    {
        QFETCH(Edit, edit);
        QFETCH(QString, changed);
        writeMonthFile(m_folder, 2006, 5, {entry(2006, 5, 1, u"rent"_s), entry(2006, 5, 9, u"bus"_s)});
        KController controller;
        const auto shown = [&controller] {
            const auto may = controller.monthListForYear(2006, 5);
            QStringList mayPart = detailsOf(may->dataListArray());
            if (!may->summary().isEmpty())
                mayPart.append(u"memo: "_s + may->summary());
            return mayPart.join(u' ') + u" | "_s
                   + detailsOf(controller.monthListForYear(2006, 6)->dataListArray()).join(u' ');
        };
        const auto may = controller.monthListForYear(2006, 5);
        const QString before = shown();
        QSignalSpy recorded(&controller, &KController::changeRecorded);
        {
            const KController::ChangeScope scope(&controller, u"the change"_s, edit == Edit::Memo);
            const PaymentDataPtr rent = may->dataListArray().constFirst();
            switch (edit) {
            case Edit::Cell:
                rent->setDetails(u"lunch"_s);
                may->dataListArray().constLast()->setDetails(u"train"_s);
                break;
            case Edit::Booking:
                QVERIFY(controller.addData({entry(2006, 5, 3, u"lunch"_s)}));
                break;
            case Edit::Delete:
                controller.deleteData({rent});
                break;
            case Edit::Move:
                rent->setMonth(6);
                controller.moveData(rent, may.get());
                break;
            case Edit::Memo:
                may->setSummary(u"car"_s);
                may->setIsEdited(true);
                controller.keepChange(may.get());
                break;
            }
        }
        QCOMPARE(shown(), changed);
        QCOMPARE(recorded.size(), 1);
        const auto change = recorded.at(0).at(0).value<KController::Change>();
        QCOMPARE(change.label, u"the change"_s);
        QCOMPARE(change.typing, edit == Edit::Memo);
        QCOMPARE(change.months.size(), edit == Edit::Move ? 2 : 1);

        QVERIFY(controller.restoreChange(change, true));
        QCOMPARE(shown(), before);
        QVERIFY(controller.restoreChange(change, false));
        QCOMPARE(shown(), changed);
        QVERIFY(controller.restoreChange(change, true));
        QCOMPARE(recorded.size(), 1); // taking back is no change of its own
        controller.releaseAllDataWithSave(false);
        QVERIFY(controller.replayChangeJournal());
        QCOMPARE(shown(), before);
    }

    void closingDayMonths_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("closingDay");
        QTest::addColumn<QStringList>("details");
        // Records exist on 2005/12/20, 12/26, 12/31, 2006/1/1, 1/25, 1/26,
        // 2006/2/26, 2/28 and 2006/3/1, 3/25, 3/26.
        const auto row = [](const char *name, int month, int closingDay, const QString &details) {
            QTest::newRow(name) << 2006 << month << closingDay << words(details);
        };
        row("March closes on the 25th", 3, 25, u"2/26 2/28 3/1 3/25"_s);
        row("January starts in December", 1, 25, u"12/26 12/31 1/1 1/25"_s);
        row("a day past every month's end is the calendar month", 3, 31, u"3/1 3/25 3/26"_s);
        row("day 28 of a 28-day February", 3, 28, u"3/1 3/25 3/26"_s);
        row("day 0 keeps the whole month before", 2, 0, u"1/1 1/25 1/26"_s);
    }

    void closingDayMonths()
    {
        QFETCH(int, year);
        QFETCH(int, month);
        QFETCH(int, closingDay);
        QFETCH(QStringList, details);
        const auto day = [](int y, int m, int d) {
            return entry(y, m, d, QString::number(m) + u'/' + QString::number(d));
        };
        writeMonthFile(m_folder, 2005, 12, {day(2005, 12, 20), day(2005, 12, 26), day(2005, 12, 31)});
        writeMonthFile(m_folder, 2006, 1, {day(2006, 1, 1), day(2006, 1, 25), day(2006, 1, 26)});
        writeMonthFile(m_folder, 2006, 2, {day(2006, 2, 26), day(2006, 2, 28)});
        writeMonthFile(m_folder, 2006, 3, {day(2006, 3, 1), day(2006, 3, 25), day(2006, 3, 26)});

        Settings settings;
        settings.setChangeMonthLastDate(true);
        settings.setMonthLastDate(closingDay);
        KController controller;
        const auto list = controller.listForYear(year, month, true);
        QVERIFY(dynamic_cast<ModifMonthList *>(list.get()));
        QCOMPARE(detailsOf(list->dataListArray()), details);
        QCOMPARE(list->grandTotal(), 100.0f * float(details.size()));
        QVERIFY(controller.listForYear(year, month, true) != list); // not cached

        // With the setting off, or without asking for it, the calendar month.
        QCOMPARE(controller.listForYear(year, month, false), controller.listForYear(year, month));
        settings.setChangeMonthLastDate(false);
        QVERIFY(!dynamic_cast<ModifMonthList *>(controller.listForYear(year, month, true).get()));
    }

    void closingDayMonthFollowsItsCalendarMonths()
    {
        Settings settings;
        settings.setChangeMonthLastDate(true);
        settings.setMonthLastDate(25);
        KController controller;
        const auto february = entry(2006, 2, 27, u"late february"_s);
        const auto tea = entry(2006, 2, 26, u"tea"_s);
        controller.addData({february, tea, entry(2006, 3, 2, u"march"_s)});
        const auto list = std::static_pointer_cast<ModifMonthList>(controller.listForYear(2006, 3, true));
        QCOMPARE(detailsOf(list->dataListArray()), (QStringList{u"tea"_s, u"late february"_s, u"march"_s}));

        QSignalSpy changed(Notifications::instance(), &Notifications::dataListHasChanged);
        controller.deleteData({february});
        QCOMPARE(detailsOf(list->dataListArray()), (QStringList{u"tea"_s, u"march"_s}));
        QVERIFY(changed.contains(QVariantList{QVariant::fromValue<DataList *>(list.get())}));

        // Its search stays when a day of the month before changes.
        ExtractKeyDict keys;
        keys.details = QStringList{u"tea"_s};
        list->setextractKeyDict(keys);
        list->extractList();
        tea->setAmount(300);
        QCOMPARE(detailsOf(list->extractedArray()), QStringList{u"tea"_s});
        QCOMPARE(list->extractedTotal(), 300.0f);

        // Structural changes go to the calendar months only.
        QTest::ignoreMessage(QtWarningMsg, "Invalid Access to ModifMonthList!! addData:");
        list->addData({entry(2006, 3, 3, u"refused"_s)});
        QTest::ignoreMessage(QtWarningMsg, "Invalid Access to ModifMonthList!! deleteData:");
        list->deleteData(list->dataListArray());
        QCOMPARE(list->dataListArray().size(), 2);
    }

    void dayBelongsToItsClosingMonth_data()
    {
        QTest::addColumn<QDate>("day");
        QTest::addColumn<int>("lastDate");
        QTest::addColumn<QDate>("month");
        QTest::newRow("on the closing day") << QDate(2006, 5, 25) << 25 << QDate(2006, 5, 1);
        QTest::newRow("after the closing day") << QDate(2006, 5, 26) << 25 << QDate(2006, 6, 1);
        QTest::newRow("into the next year") << QDate(2006, 12, 31) << 20 << QDate(2007, 1, 1);
        QTest::newRow("closing on the 31st") << QDate(2006, 4, 30) << 31 << QDate(2006, 4, 1);
    }

    void dayBelongsToItsClosingMonth()
    {
        QFETCH(QDate, day);
        QFETCH(int, lastDate);
        QFETCH(QDate, month);
        QCOMPARE(ModifMonthList::closingMonthOf(day, lastDate), month);
    }

private:
    QStringList onDisk(int year, int month) const { return detailsOnDisk(m_folder, year, month); }

    TestDataFolder m_home;
    QString m_folder;
};

QTEST_GUILESS_MAIN(TestKController)
#include "tst_kcontroller.moc"
