#include "TestHelpers.h"

#include "storage/ChangeJournal.h"
#include "storage/DurableFile.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <cstring>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(DurableFile::Step)

namespace {
QStringList contentsOf(const ChangeJournal::Contents &contents)
{
    QStringList months;
    for (const ChangeJournal::Month &month : contents.months)
        months.append(u"%1/%2=%3"_s.arg(month.year).arg(month.month).arg(QString::fromLatin1(month.content)));
    return months;
}
} // namespace

// A write that fails at any step leaves the old file exactly as it was, no
// temporary file behind, and says why in the system's words.
class TestDurableFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_path = m_folder.filePath(u"Data_1997_2.Penwick"_s);
        QVERIFY(DurableFile::write(m_path, "twenty entries"));
    }

    void cleanup()
    {
        DurableFile::setFaultForTesting(std::nullopt);
    }

    void failureAtEachStepKeepsTheOldFile_data()
    {
        QTest::addColumn<DurableFile::Step>("step");
        QTest::addColumn<int>("error");
        QTest::newRow("open, read-only") << DurableFile::Step::Open << EROFS;
        QTest::newRow("write, disk full") << DurableFile::Step::Write << ENOSPC;
        QTest::newRow("sync, disk full") << DurableFile::Step::SyncFile << ENOSPC;
        QTest::newRow("sync, I/O error") << DurableFile::Step::SyncFile << EIO;
        QTest::newRow("rename, read-only") << DurableFile::Step::Rename << EROFS;
    }

    void failureAtEachStepKeepsTheOldFile()
    {
        QFETCH(DurableFile::Step, step);
        QFETCH(int, error);
        DurableFile::setFaultForTesting(DurableFile::Fault{step, error});
        QString why;
        QVERIFY(!DurableFile::write(m_path, "nothing", &why));
        QVERIFY2(why.contains(QString::fromLocal8Bit(std::strerror(error))), qPrintable(why));
        QVERIFY2(why.contains(m_path), qPrintable(why));
        QCOMPARE(readBytes(m_path), QByteArray("twenty entries"));
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"Data_1997_2.Penwick"_s});

        // Once the disk is well again, the same write goes through.
        DurableFile::setFaultForTesting(std::nullopt);
        QVERIFY(DurableFile::write(m_path, "twenty-one entries"));
        QCOMPARE(readBytes(m_path), QByteArray("twenty-one entries"));
    }

    void batchWritesCountOnlyOnceSynced()
    {
        const QString side = m_path + u".converting"_s;
        DurableFile::setFaultForTesting(DurableFile::Fault{DurableFile::Step::Write, ENOSPC});
        QVERIFY(!DurableFile::writeUnsynced(side, "renumbered"));
        DurableFile::setFaultForTesting(DurableFile::Fault{DurableFile::Step::SyncFile, EIO});
        QVERIFY(DurableFile::writeUnsynced(side, "renumbered"));
        QString why;
        QVERIFY(!DurableFile::syncToDisk(side, &why));
        QVERIFY(why.contains(QString::fromLocal8Bit(std::strerror(EIO))));
        DurableFile::setFaultForTesting(DurableFile::Fault{DurableFile::Step::SyncFolder, EIO});
        QVERIFY(!DurableFile::syncFolder(m_folder.path()));
        DurableFile::setFaultForTesting(std::nullopt);
        QVERIFY(DurableFile::syncToDisk(side));
        QVERIFY(DurableFile::rename(side, m_path));
        QCOMPARE(readBytes(m_path), QByteArray("renumbered"));
    }

    void journalYieldsWholeRecordsOnly_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("months");
        QTest::addColumn<bool>("torn");
        QTest::addColumn<bool>("foreign");

        // A move (May and June), then an edit of May: the last content counts.
        QTemporaryDir folder;
        ChangeJournal journal(folder.filePath(u"journal"_s));
        QVERIFY(journal.append({{2006, 5, "may-1"}, {2006, 6, "june-1"}}));
        QVERIFY(journal.append({{2006, 5, "may-2"}}));
        const QByteArray whole = readBytes(journal.path());
        const qsizetype lastRecord = 4 + 8 + 2 + 12 + 5;
        const QStringList afterMove{u"2006/5=may-1"_s, u"2006/6=june-1"_s};

        QTest::newRow("whole") << whole << QStringList{u"2006/6=june-1"_s, u"2006/5=may-2"_s} << false << false;
        QTest::newRow("last record cut short") << whole.chopped(3) << afterMove << true << false;
        QTest::newRow("only its length written") << whole.chopped(lastRecord - 4) << afterMove << true << false;
        QByteArray flipped = whole;
        flipped[flipped.size() - 1] = 'X';
        QTest::newRow("last record damaged") << flipped << afterMove << true << false;
        QTest::newRow("signature cut short") << whole.left(5) << QStringList() << true << false;
        QTest::newRow("empty") << QByteArray() << QStringList() << false << false;
        QTest::newRow("another file") << QByteArray("<?xml version=\"1.0\"?>") << QStringList() << false << true;
    }

    void journalYieldsWholeRecordsOnly()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, months);
        QFETCH(bool, torn);
        QFETCH(bool, foreign);
        const ChangeJournal::Contents contents = ChangeJournal::read(bytes);
        QCOMPARE(contentsOf(contents), months);
        QCOMPARE(contents.torn, torn);
        QCOMPARE(contents.foreign, foreign);
    }

    // The real thing: a tiny file system filled to the brim, then made
    // read-only. Only root may mount one, so others skip this.
    void realFullAndReadOnlyDisk()
    {
        if (::geteuid() != 0)
            QSKIP("mounting a small file system needs root");
        QTemporaryDir mountPoint;
        const auto run = [](const QString &program, const QStringList &arguments) {
            return QProcess::execute(program, arguments) == 0;
        };
        if (!run(u"mount"_s, {u"-t"_s, u"tmpfs"_s, u"-o"_s, u"size=64k"_s, u"tmpfs"_s, mountPoint.path()}))
            QSKIP("this machine does not let us mount a file system");
        const auto unmount = qScopeGuard([&] { run(u"umount"_s, {mountPoint.path()}); });

        const QString path = mountPoint.filePath(u"Data_1997_2.Penwick"_s);
        const QByteArray month(20 * 1024, 'm');
        QVERIFY(DurableFile::write(path, month));
        ChangeJournal journal(mountPoint.filePath(u".penwick-journal"_s));
        QVERIFY(journal.append({{1997, 2, "kept"}}));
        QCOMPARE(QFileInfo(journal.path()).permissions() & 0x0077, 0); // the owner's alone
        // Fill what is left, so that a second copy of the month cannot fit.
        QVERIFY(run(u"sh"_s, {u"-c"_s, u"dd if=/dev/zero of=%1 bs=4k 2>/dev/null; true"_s.arg(
                                          mountPoint.filePath(u"filler"_s))}));
        QString why;
        QVERIFY(!DurableFile::write(path, QByteArray(30 * 1024, 'n'), &why));
        QVERIFY2(why.contains(QString::fromLocal8Bit(std::strerror(ENOSPC))), qPrintable(why));
        QCOMPARE(readBytes(path), month);
        QCOMPARE(QDir(mountPoint.path()).entryList(QDir::Files | QDir::Hidden),
                 (QStringList{u".penwick-journal"_s, u"Data_1997_2.Penwick"_s, u"filler"_s}));
        // A record the disk cannot take is taken back whole: the journal still
        // reads, with what it held.
        QVERIFY(!journal.append({{1997, 2, QByteArray(30 * 1024, 'j')}}, &why));
        QVERIFY2(why.contains(QString::fromLocal8Bit(std::strerror(ENOSPC))), qPrintable(why));
        const ChangeJournal::Contents kept = ChangeJournal::readFile(journal.path());
        QCOMPARE(contentsOf(kept), QStringList{u"1997/2=kept"_s});
        QVERIFY(!kept.torn);
        QVERIFY(journal.remove());
        QVERIFY(!QFile::exists(journal.path()));

        QVERIFY(run(u"mount"_s, {u"-o"_s, u"remount,ro"_s, mountPoint.path()}));
        why.clear();
        QVERIFY(!DurableFile::write(path, "small", &why));
        QVERIFY(why.contains(path));
        QCOMPARE(readBytes(path), month);
    }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

QTEST_GUILESS_MAIN(TestDurableFile)
#include "tst_durablefile.moc"
