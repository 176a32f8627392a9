#include "LedgerGenerator.h"
#include "ProbeRun.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "exchange/CsvExport.h"
#include "exchange/CsvImporter.h"
#include "exchange/LedgerImport.h"
#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "storage/ListFile.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <chrono>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace {

// The household of 2006 has ten entries a month; the file brings twelve a
// month from July 2006 to June 2007, half of them into empty months.
constexpr int kBooked = 10;
constexpr int kImported = 12;

QByteArray importFile(int round)
{
    LedgerGenerator generator(700 + unsigned(round));
    PaymentArray records;
    for (int i = 0; i < 12; ++i)
        records += generator.monthRecords(2006 + (6 + i) / 12, (6 + i) % 12 + 1, kImported);
    for (const PaymentDataPtr &record : std::as_const(records))
        record->setDetails(record->details() + u" #%1"_s.arg(round));
    return CsvExport::text(records, LedgerGenerator::categoryNames(), LedgerGenerator::paywayNames());
}

// Entries per month from January 2006 to June 2007, as a fresh start reads them.
QList<qsizetype> countsOnDisk()
{
    KController ledger;
    ledger.replayChangeJournal();
    QList<qsizetype> counts;
    for (int i = 0; i < 18; ++i) {
        const auto month = ledger.monthListForYear(2006 + i / 12, i % 12 + 1);
        counts.append(month->isReadOnly() ? -1 : month->dataListArray().size());
    }
    return counts;
}

QList<qsizetype> expectedCounts(int imports)
{
    QList<qsizetype> counts;
    for (int i = 0; i < 18; ++i)
        counts.append((i < 12 ? kBooked : 0) + (i >= 6 ? imports * kImported : 0));
    return counts;
}

LedgerImport importOf(KController &ledger, int round)
{
    ledger.readListPreference();
    return LedgerImport(ledger, CsvImporter().parse(importFile(round)),
                        ImportMapping(ledger.categoryList(), ledger.paywayList()));
}

} // namespace

// An import is booked as one change: every month it touches, or none.
class TestLedgerImport : public QObject
{
    Q_OBJECT

private slots:
    void bookingIsWholeOrNothing_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::addColumn<QString>("reason");
        QTest::newRow("booked") << QString() << QString();
        QTest::newRow("a month unreadable") << u"month"_s << u"could not be read"_s;
        QTest::newRow("the list file broken") << u"list"_s << u"list file"_s;
        QTest::newRow("cancelled half-way") << u"cancel"_s << u"cancelled"_s;
    }

    void bookingIsWholeOrNothing()
    {
        QFETCH(QString, obstacle);
        QFETCH(QString, reason);
        TestDataFolder home;
        const QString folder = home.freshDataFolder();
        QVERIFY(LedgerGenerator().writeDataFolder(folder, 2006, 1, kBooked));
        if (obstacle == u"month"_s)
            writeBytes(DataFolder::filePathForYear(folder, 2007, 3), "not a month");
        KController ledger;
        LedgerImport import = importOf(ledger, 0);
        QCOMPARE(import.mapped().entries.size(), 12 * kImported);
        if (obstacle == u"list"_s) {
            writeBytes(ListFile::dictionaryPathString(folder), "broken");
            ledger.readListPreference();
        }
        QSignalSpy recorded(&ledger, &KController::changeRecorded);
        int steps = 0;
        QString error;
        const bool booked = import.book(&error, [&](int done, int total) {
            steps = done;
            return obstacle != u"cancel"_s || done < total / 2;
        });
        QCOMPARE(booked, obstacle.isEmpty());
        QVERIFY2(error.contains(reason), qPrintable(error));
        if (!booked) {
            QVERIFY(recorded.isEmpty());
            QList<qsizetype> unchanged = expectedCounts(0);
            if (obstacle == u"month"_s)
                unchanged[14] = -1;
            QCOMPARE(countsOnDisk(), unchanged);
            return;
        }
        QCOMPARE(steps, 12);
        QCOMPARE(countsOnDisk(), expectedCounts(1));
        QVERIFY(!QFile::exists(ledger.changeJournalPath()));
        // One step of the undo history takes every month back.
        QCOMPARE(recorded.size(), 1);
        const auto change = recorded.constFirst().constFirst().value<KController::Change>();
        QCOMPARE(change.label, u"Import of 144 Entries"_s);
        QCOMPARE(change.months.size(), 12);
        QVERIFY(ledger.restoreChange(change, true));
        QVERIFY(ledger.saveAllEditedData());
        QCOMPARE(countsOnDisk(), expectedCounts(0));
    }

    void newCategoryAndDuplicates()
    {
        TestDataFolder home;
        const QString folder = home.freshDataFolder();
        QVERIFY(LedgerGenerator().writeDataFolder(folder, 2006, 1, kBooked));
        KController ledger;
        ledger.readListPreference();
        const QStringList before = ledger.categoryList();
        const int income = int(before.size()) - 1;
        const auto julyEntriesOf = [&ledger](int category) {
            const PaymentArray july = ledger.monthListForYear(2006, 7)->dataListArray();
            return std::count_if(july.cbegin(), july.cend(),
                                 [category](const PaymentDataPtr &r) { return r->category() == category; });
        };
        const auto incomeBefore = julyEntriesOf(income);

        ImportResult file;
        file.entries = {{QDate(2006, 7, 3), -12.5, u"Ferry"_s, u"Boats"_s, {}, false, 2},
                        {QDate(2006, 7, 4), 300, u"Bonus"_s, {}, {}, false, 3}};
        file.problems = {{4, u"'x' is not a date."_s}};
        ImportMapping mapping(before, ledger.paywayList());
        mapping.setNewCategory(u"Boats and ferries"_s);
        LedgerImport import(ledger, file, mapping);
        QCOMPARE(import.newCategory(), u"Boats and ferries"_s);
        QString error;
        QVERIFY2(import.book(&error), qPrintable(error));
        QCOMPARE(ledger.categoryList().size(), before.size() + 1);
        QCOMPARE(ledger.categoryList().at(income), u"Boats and ferries"_s);
        // Income moved up one, the entries of income with it.
        QCOMPARE(julyEntriesOf(income + 1), incomeBefore + 1);
        const LedgerImport::Report report = import.report();
        QCOMPARE(report.months, (QMap<int, int>{{200607, 2}}));
        QCOMPARE(report.problems.size(), 1);

        // The same file again: both rows are booked already and start unticked.
        LedgerImport again(ledger, file, ImportMapping(ledger.categoryList(), ledger.paywayList()));
        QCOMPARE(again.report().duplicates, 2);
        QCOMPARE(again.report().booked, 0);
        QVERIFY(!again.book(&error));
        QCOMPARE(ledger.monthListForYear(2006, 7)->dataListArray().size(), kBooked + 2);
    }

    // The probe books an import of twelve months and is killed 0 to 12 ms later,
    // thirty times: after a restart either every month holds the import or none.
    void killedImportLeavesMonthsWholly()
    {
        TestDataFolder home;
        const QString folder = home.freshDataFolder();
        QVERIFY(LedgerGenerator().writeDataFolder(folder, 2006, 1, kBooked));
        std::mt19937 random(20060701);
        std::uniform_int_distribution<int> delayUs(0, 12000);
        int imports = 0;
        int cutShort = 0;
        int wholeBeforeReturn = 0;
        for (int round = 0; round < 30; ++round) {
            const QString path = QDir(home.home()).filePath(u"round.csv"_s);
            writeBytes(path, importFile(round));
            const auto output = killProbeAfter(QStringLiteral(IMPORT_PROBE_PATH), {folder, path},
                                               std::chrono::microseconds(delayUs(random)));
            QVERIFY2(output, "the probe did not run");
            const bool returned = output->contains("booked");

            const QList<qsizetype> counts = countsOnDisk();
            if (counts == expectedCounts(imports + 1)) {
                ++imports;
                wholeBeforeReturn += !returned;
            } else if (!returned && counts == expectedCounts(imports)) {
                ++cutShort;
            }
            else
                QFAIL(qPrintable(u"round %1: the months are neither as before nor wholly imported"_s.arg(round)));
        }
        qInfo("%d imports booked (%d of them killed before the booking returned), %d cut short",
              imports, wholeBeforeReturn, cutShort);
    }
};

QTEST_GUILESS_MAIN(TestLedgerImport)
#include "tst_ledgerimport.moc"
