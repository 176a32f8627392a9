#include "SwapConversion.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ledger/ConversionJournal.h"
#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "model/Notifications.h"
#include "storage/MonthFile.h"

#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kFirstYear = 2001;
constexpr int kYears = 2;
constexpr int kMonths = kYears * 12;

// A month as comparable text: one line per entry, in a fixed order, the
// category and payway numbers optionally renumbered, and the memo.
QStringList monthText(const MonthDataList &month, const ListConversion &conversion = {})
{
    QStringList lines;
    for (const PaymentDataPtr &r : month.dataListArray()) {
        lines.append(u"%1 %2 %3 %4 %5"_s.arg(r->date())
                         .arg(conversion.categoryMap.value(r->category(), r->category()))
                         .arg(r->details())
                         .arg(r->amount())
                         .arg(conversion.paywayMap.value(r->payway(), r->payway())));
    }
    lines.sort();
    lines.append(month.summary());
    return lines;
}

// Every month file of the folder, by name.
QMap<QString, std::shared_ptr<MonthDataList>> readMonths(const QString &folder)
{
    QMap<QString, std::shared_ptr<MonthDataList>> months;
    const QStringList names = QDir(folder).entryList({u"Data_*.Penwick"_s}, QDir::Files);
    for (const QString &name : names) {
        QString error;
        auto month = MonthFile::decode(readBytes(QDir(folder).filePath(name)), &error);
        if (!month)
            qFatal("%s: %s", qPrintable(name), qPrintable(error));
        months.insert(name, month);
    }
    return months;
}

QStringList leftovers(const QString &folder)
{
    return QDir(folder).entryList({u"*.converting*"_s, u".penwick-conversion"_s},
                                  QDir::Files | QDir::Hidden);
}

} // namespace

class TestConversion : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = m_home.freshDataFolder();
        QVERIFY(LedgerGenerator().writeDataFolder(m_folder, kFirstYear, kYears, 30));
    }

    void everyMonthFileIsRenumbered()
    {
        KController controller;
        // An edit not saved yet is part of what gets renumbered.
        const auto may = controller.monthListForYear(2002, 5);
        const PaymentDataPtr edited = may->dataListArray().constFirst();
        edited->setDetails(u"Edited just now"_s);
        QVERIFY(may->isEdited());
        auto old = readMonths(m_folder);
        old.insert(u"Data_2002_5.Penwick"_s, MonthFile::decode(MonthFile::encode(*may), nullptr));

        QSignalSpy progress(&controller, &KController::conversionProgress);
        QSignalSpy announced(Notifications::instance(), &Notifications::dataListHasChanged);
        QString error;
        QVERIFY2(controller.convertStoredData(swapConversion(), &error), qPrintable(error));
        verifyConverted(old);
        // Each month is sorted and announced once, not once per entry.
        QCOMPARE(announced.size(), kMonths);
        QCOMPARE(progress.size(), 2 * kMonths);
        QCOMPARE(progress.constLast(), (QVariantList{2 * kMonths, 2 * kMonths}));

        // The months in memory carry the new numbers, clean, and the names follow.
        QCOMPARE(monthText(*may), monthText(*readMonths(m_folder).value(u"Data_2002_5.Penwick"_s)));
        QVERIFY(!may->isEdited());
        QCOMPARE(controller.categoryList().first(), u"Eating out"_s);
    }

    void anUnreadableMonthRefusesTheConversion()
    {
        const QString broken = DataFolder::filePathForYear(m_folder, 2001, 7);
        writeBytes(broken, "not a month");
        QMap<QString, QByteArray> before;
        for (const QString &name : QDir(m_folder).entryList(QDir::Files))
            before.insert(name, readBytes(QDir(m_folder).filePath(name)));

        KController controller;
        QString error;
        QVERIFY(!controller.convertStoredData(swapConversion(), &error));
        QVERIFY2(error.contains(u"7/2001"_s) && error.contains(broken), qPrintable(error));
        for (auto it = before.cbegin(); it != before.cend(); ++it)
            QVERIFY2(readBytes(QDir(m_folder).filePath(it.key())) == it.value(), qPrintable(it.key()));
        QCOMPARE(leftovers(m_folder), QStringList());
    }

    void aKilledConversionIsFinishedAtTheNextStart_data()
    {
        QTest::addColumn<int>("killAt");
        QTest::addColumn<ConversionJournal::Phase>("phase");
        QTest::newRow("first month written aside") << 1 << ConversionJournal::Phase::Prepare;
        QTest::newRow("every month aside, not decided") << kMonths << ConversionJournal::Phase::Prepare;
        QTest::newRow("first month replaced") << kMonths + 1 << ConversionJournal::Phase::Commit;
        QTest::newRow("all but one replaced") << 2 * kMonths - 1 << ConversionJournal::Phase::Commit;
    }

    void aKilledConversionIsFinishedAtTheNextStart()
    {
        QFETCH(int, killAt);
        QFETCH(ConversionJournal::Phase, phase);
        const auto old = readMonths(m_folder);

        QProcess probe;
        probe.start(QStringLiteral(CONVERSION_PROBE), {m_folder, QString::number(killAt)});
        QVERIFY(probe.waitForFinished(60000));
        QCOMPARE(probe.exitStatus(), QProcess::CrashExit);

        // Killed: each month is wholly old or wholly new, and the journal knows
        // how far it got.
        const auto killed = readMonths(m_folder);
        int renumbered = 0;
        for (auto it = old.cbegin(); it != old.cend(); ++it) {
            const QStringList now = monthText(*killed.value(it.key()));
            if (now == monthText(*it.value(), swapConversion()))
                ++renumbered;
            else
                QCOMPARE(now, monthText(*it.value()));
        }
        QCOMPARE(renumbered, qMax(0, killAt - kMonths));
        ConversionJournal journal(m_folder);
        QVERIFY(journal.read(nullptr));
        QCOMPARE(journal.phase(), phase);
        if (phase == ConversionJournal::Phase::Prepare) {
            // What a kill in the middle of writing a side file leaves behind.
            writeBytes(QDir(m_folder).filePath(u"Data_2001_2.Penwick.converting.k1Xy9Q"_s), "torn");
        }

        KController nextStart;
        QString error;
        QVERIFY2(nextStart.finishInterruptedConversion(&error), qPrintable(error));
        verifyConverted(old);
        QVERIFY(nextStart.finishInterruptedConversion()); // nothing left to do
    }

    void anUnreadableJournalStopsEverything()
    {
        writeBytes(ConversionJournal::journalPath(m_folder), "{ half a journal");
        KController controller;
        QString error;
        QVERIFY(!controller.finishInterruptedConversion(&error));
        QVERIFY(error.contains(u".penwick-conversion"_s));
        QVERIFY(!controller.convertStoredData(swapConversion()));
        QCOMPARE(monthText(*readMonths(m_folder).value(u"Data_2001_1.Penwick"_s)),
                 monthText(*controller.monthListForYear(2001, 1)));
    }

private:
    // Checks that the folder holds the old months with each entry renumbered,
    // and the new lists.
    void verifyConverted(const QMap<QString, std::shared_ptr<MonthDataList>> &old)
    {
        const auto now = readMonths(m_folder);
        QCOMPARE(now.keys(), old.keys());
        for (auto it = old.cbegin(); it != old.cend(); ++it)
            QCOMPARE(monthText(*now.value(it.key())), monthText(*it.value(), swapConversion()));
        const QVariantMap lists = swapConversion().lists;
        QCOMPARE(ListFile::preferenceDataListForKey(m_folder, ListFile::CategoryList),
                 lists.value(ListFile::CategoryList).toList());
        QCOMPARE(ListFile::preferenceDataListForKey(m_folder, ListFile::PaywayList),
                 lists.value(ListFile::PaywayList).toList());
        QCOMPARE(leftovers(m_folder), QStringList());
    }

    TestDataFolder m_home;
    QString m_folder;
};

QTEST_GUILESS_MAIN(TestConversion)
#include "tst_conversion.moc"
