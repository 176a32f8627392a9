#include "SwapConversion.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ledger/ConversionJournal.h"
#include "ledger/DataFolder.h"
#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "storage/MonthFile.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kFirstYear = 2001;

// Every file of the folder but the journals, by name: what a user would
// find there.
QMap<QString, QByteArray> folderContent(const QString &folder)
{
    QMap<QString, QByteArray> files;
    for (const QString &name : QDir(folder).entryList(QDir::Files))
        files.insert(name, readBytes(QDir(folder).filePath(name)));
    return files;
}

// Category 2 merged into category 0: its entries cannot be told apart
// afterwards, so no map takes the change back.
ListConversion mergeConversion()
{
    QStringList categories = LedgerGenerator::categoryNames();
    ListConversion conversion;
    conversion.categoryMap.insert(2, 0);
    for (int i = 3; i < categories.size(); ++i)
        conversion.categoryMap.insert(i, i - 1);
    categories.removeAt(2);
    conversion.lists = {{ListFile::CategoryList, QVariant(categories).toList()}};
    return conversion;
}

} // namespace

Q_DECLARE_METATYPE(ListConversion)

// A change of the category and payway lists is one step of the history, and
// taking it back goes the same crash-safe way as making it.
class TestListUndo : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = m_home.freshDataFolder();
        QVERIFY(LedgerGenerator().writeDataFolder(m_folder, kFirstYear, 1, 20));
        m_recorded.clear();
        m_ledger = std::make_unique<KController>();
        m_ledger->readListPreference();
        connect(m_ledger.get(), &KController::changeRecorded, this,
                [this](const KController::Change &change) { m_recorded.append(change); });
    }

    void aChangeOfTheListsIsTakenBackAndMadeAgain_data()
    {
        QTest::addColumn<ListConversion>("conversion");
        QTest::newRow("swap") << swapConversion();
        QTest::newRow("merge") << mergeConversion();
        ListConversion renaming;
        QStringList payways = LedgerGenerator::paywayNames();
        payways[0] = u"Pocket money"_s;
        renaming.lists = {{ListFile::PaywayList, QVariant(payways).toList()}};
        QTest::newRow("renaming only") << renaming;
    }

    void aChangeOfTheListsIsTakenBackAndMadeAgain()
    {
        QFETCH(ListConversion, conversion);
        const auto before = folderContent(m_folder);
        const QStringList categoriesBefore = m_ledger->categoryList();
        const QStringList paywaysBefore = m_ledger->paywayList();
        const auto march = m_ledger->monthListForYear(kFirstYear, 3);

        QString error;
        QVERIFY2(m_ledger->convertStoredData(conversion, &error), qPrintable(error));
        QCOMPARE(m_recorded.size(), 1);
        const KController::Change change = m_recorded.constFirst();
        QCOMPARE(change.label, u"Change of Categories and Payways"_s);
        QCOMPARE(change.months.isEmpty(), !conversion.renumbers());
        const auto after = folderContent(m_folder);
        const QByteArray marchAfter = MonthFile::encode(*march);
        const QStringList categoriesAfter = m_ledger->categoryList();
        const QStringList paywaysAfter = m_ledger->paywayList();

        QVERIFY2(m_ledger->restoreChange(change, true, &error), qPrintable(error));
        QCOMPARE(folderContent(m_folder), before);
        QCOMPARE(m_ledger->categoryList(), categoriesBefore);
        QCOMPARE(m_ledger->paywayList(), paywaysBefore);
        QCOMPARE(MonthFile::encode(*march), before.value(u"Data_2001_3.Penwick"_s));
        QVERIFY(!march->isEdited());

        QVERIFY2(m_ledger->restoreChange(change, false, &error), qPrintable(error));
        QCOMPARE(folderContent(m_folder), after);
        QCOMPARE(m_ledger->categoryList(), categoriesAfter);
        QCOMPARE(m_ledger->paywayList(), paywaysAfter);
        QCOMPARE(MonthFile::encode(*march), marchAfter);
        QCOMPARE(m_recorded.size(), 1); // restoring records nothing
    }

    void earlierChangesCanBeTakenBackBehindIt()
    {
        const auto before = folderContent(m_folder);
        const auto june = m_ledger->monthListForYear(kFirstYear, 6);
        {
            KController::ChangeScope scope(m_ledger.get(), u"Change of Details"_s);
            june->dataListArray().constFirst()->setDetails(u"Edited before"_s);
        }
        QVERIFY(m_ledger->saveAllEditedData());
        QVERIFY(m_ledger->convertStoredData(swapConversion()));
        QCOMPARE(m_recorded.size(), 2);

        // Taken back in the order of the history, the edit finds its month in
        // the numbers it was made in.
        QString error;
        QVERIFY2(m_ledger->restoreChange(m_recorded.at(1), true, &error), qPrintable(error));
        QVERIFY2(m_ledger->restoreChange(m_recorded.at(0), true, &error), qPrintable(error));
        QVERIFY(m_ledger->saveAllEditedData());
        QCOMPARE(folderContent(m_folder), before);
    }

    void aMonthChangedSinceRefusesTheRestore()
    {
        QVERIFY(m_ledger->convertStoredData(swapConversion()));
        const auto june = m_ledger->monthListForYear(kFirstYear, 6);
        june->dataListArray().constFirst()->setAmount(1);
        QVERIFY(m_ledger->saveAllEditedData());
        const auto now = folderContent(m_folder);

        QString error;
        QVERIFY(!m_ledger->restoreChange(m_recorded.constFirst(), true, &error));
        QVERIFY2(error.contains(u"6/2001"_s), qPrintable(error));
        QCOMPARE(folderContent(m_folder), now);
    }

    void aRestoreCutShortLeavesTheFolderAsItWas()
    {
        QVERIFY(m_ledger->convertStoredData(swapConversion()));
        const auto now = folderContent(m_folder);
        m_ledger.reset();

        // What an undo leaves when killed before it was decided: its journal,
        // with the old content of a month written aside.
        const KController::MonthChange &first = m_recorded.constFirst().months.constFirst();
        const QString file =
            QFileInfo(DataFolder::filePathForYear(m_folder, first.year, first.month)).fileName();
        ConversionJournal journal(m_folder);
        ListConversion restore;
        restore.lists = m_recorded.constFirst().listsBefore;
        QVERIFY(journal.begin(restore, {file}, false, nullptr));
        QVERIFY(journal.writeMonth(file, first.before, nullptr));

        KController nextStart;
        QString error;
        QVERIFY(!nextStart.finishInterruptedConversion(&error));
        QVERIFY2(error.contains(u"cut short"_s), qPrintable(error));
        QCOMPARE(folderContent(m_folder), now);
        QVERIFY(nextStart.finishInterruptedConversion());
    }

private:
    // Every change the ledger records, in order.
    QList<KController::Change> m_recorded;
    TestDataFolder m_home;
    QString m_folder;
    std::unique_ptr<KController> m_ledger;
};

QTEST_GUILESS_MAIN(TestListUndo)
#include "tst_listundo.moc"
