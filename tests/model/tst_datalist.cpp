#include "TestHelpers.h"
#include "TestLedgerController.h"

#include "model/MonthDataList.h"
#include "model/Notifications.h"
#include "model/YearDataList.h"

#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

PaymentDataPtr record(int year, int month, int date, int category, const QString &details,
                      float amount, int payway = 0)
{
    return std::make_shared<PaymentData>(year, month, date, category, details, amount, payway);
}

// A month list filled as a file would fill it, without the change cycle.
std::shared_ptr<MonthDataList> listOf(const PaymentArray &records, int year = 2006, int month = 5)
{
    auto list = std::make_shared<MonthDataList>(year, month);
    list->setDataListArray(records);
    list->calcSumOfData();
    list->extractAll();
    return list;
}

} // namespace

class TestDataList : public QObject
{
    Q_OBJECT

private slots:
    void incomeIsTheLastCategory();
    void categorySumsTruncateAfterEveryAddition();
    void totalsOfTheSameEntriesAgree();
    void withoutControllerNothingIsIncome();
    void categoryListHasOneSumPerCategory();
    void sortFlagIsInverted();
    void sortBreaksTiesByCategoryAmountDetails();
    void sortIsTotalEvenWithNaN();
    void sortwithKeyTogglesTheSelection();
    void extractionTotalsAreAsymmetric();
    void extractionKeysComeBackAfterExtractAll();
    void changeCycleSortsRecalculatesAndNotifies();
    void addingRecordsOfAnotherMonthMovesThem();
    void deletionIsByIdentity();
    void makeNewDataKeepsTodaysRecordInThisList();
    void conversionMarksEdited();
    void summaryDoesNotMarkEdited();
    void recordEditReachesItsMonthList();
    void yearListGathersTheMonthsAsASnapshot();
};

void TestDataList::incomeIsTheLastCategory()
{
    TestLedgerController controller; // Food, Rent, Income
    auto list = listOf({record(2006, 5, 1, 0, u"a"_s, 1000), record(2006, 5, 2, 2, u"b"_s, 3000)});
    QCOMPARE(list->grandTotal(), 4000.0f);
    QCOMPARE(list->incomeTotal(), 3000.0f);
    QCOMPARE(list->expendTotal(), 1000.0f);

    auto spendingOnly = listOf({record(2006, 5, 1, 0, u"a"_s, 250), record(2006, 5, 2, 1, u"b"_s, 50)});
    QCOMPARE(spendingOnly->incomeTotal(), 0.0f);
    QCOMPARE(spendingOnly->expendTotal(), spendingOnly->grandTotal());
}

void TestDataList::totalsOfTheSameEntriesAgree()
{
    TestLedgerController controller; // Food, Rent, Income
    // A month of amounts with cents: summed in float as they come, the
    // total drifts by more than a cent from the sum of what was booked.
    PaymentArray records;
    double exact = 0;
    for (int i = 0; i < 400; ++i) {
        const float amount = 1234.57f + float(i % 7) * 0.11f;
        exact += amount;
        records.append(record(2006, 5, 1 + i % 28, i % 2, QString::number(i), amount));
    }
    records.append(record(2006, 5, 25, 2, u"salary"_s, 320000));
    auto list = listOf(records);
    // In cents: QCOMPARE would forgive floats a relative 1e-5, which is
    // several units here.
    const auto cents = [](double value) { return qRound64(value * 100); };
    QCOMPARE(cents(list->expendTotal()), cents(exact));

    // A search that selects every spending entry shows the same spending.
    ExtractKeyDict keys;
    keys.incomeNumber = 2;
    keys.category = QList<int>{0, 1};
    list->setextractKeyDict(keys);
    list->extractList();
    QCOMPARE(cents(list->extractedTotal()), cents(list->expendTotal()));
}

void TestDataList::categorySumsTruncateAfterEveryAddition()
{
    TestLedgerController controller;
    auto list = listOf({record(2006, 5, 1, 0, u"a"_s, 0.6f, 1), record(2006, 5, 1, 0, u"b"_s, 0.6f, 1),
                        record(2006, 5, 1, 1, u"c"_s, -2.5f, 0), record(2006, 5, 1, 1, u"d"_s, 1.9f, 0)});
    QCOMPARE(list->categorySum().value(0), 0);
    QCOMPARE(list->paywaySum().value(1), 0);
    QVERIFY(qFuzzyCompare(list->grandTotal(), double(0.6f) + double(0.6f) - 2.5 + double(1.9f)));
    // -2.5 truncates to -2, then -2 + 1.9 to 0: toward zero each time.
    QCOMPARE(list->categorySum().value(1), 0);
    QCOMPARE(list->paywaySum().value(0), 0);
    QVERIFY(!list->categorySum().contains(2));

    // Sums saturate instead of overflowing, and a NaN amount counts as nothing.
    auto extreme = listOf({record(2006, 5, 1, 0, u"a"_s, 3e9f),
                           record(2006, 5, 1, 1, u"b"_s, std::numeric_limits<float>::quiet_NaN())});
    QCOMPARE(extreme->categorySum().value(0), std::numeric_limits<int>::max());
    QCOMPARE(extreme->categorySum().value(1), 0);
}

void TestDataList::withoutControllerNothingIsIncome()
{
    auto list = listOf({record(2006, 5, 1, 0, u"a"_s, 10), record(2006, 5, 2, 2, u"b"_s, 30)});
    QCOMPARE(list->incomeTotal(), 0.0f);
    QCOMPARE(list->expendTotal(), 40.0f);
    QVERIFY(list->categoryList().isEmpty());
}

void TestDataList::categoryListHasOneSumPerCategory()
{
    TestLedgerController controller;
    auto list = listOf({record(2006, 5, 1, 2, u"pay"_s, 300), record(2006, 5, 1, 0, u"a"_s, 12.7f),
                        record(2006, 5, 1, 7, u"stray"_s, 5)});
    QCOMPARE(list->categoryList(), (QList<int>{12, 0, 300}));
}

void TestDataList::sortFlagIsInverted()
{
    PaymentArray records{record(2006, 5, 1, 0, u"b"_s, 20), record(2006, 5, 2, 0, u"a"_s, 300),
                         record(2006, 5, 3, 0, u"c"_s, 5)};
    DataList::sortList(records, u"Amount", true);
    QCOMPARE(detailsOf(records), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    DataList::sortList(records, u"Amount", false);
    QCOMPARE(detailsOf(records), (QStringList{u"c"_s, u"b"_s, u"a"_s}));
    DataList::sortList(records, u"Details");
    QCOMPARE(detailsOf(records), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

void TestDataList::sortBreaksTiesByCategoryAmountDetails()
{
    PaymentArray records{record(2006, 5, 4, 1, u"z"_s, 10), record(2006, 5, 4, 0, u"y"_s, 30),
                         record(2006, 5, 4, 0, u"x"_s, 20), record(2006, 5, 4, 0, u"b"_s, 20),
                         record(2006, 5, 4, 0, u"B"_s, 20), record(2006, 5, 1, 9, u"first"_s, 99)};
    DataList::sortList(records, u"Date");
    // Details compare literally: capitals before small letters.
    QCOMPARE(detailsOf(records),
             (QStringList{u"first"_s, u"B"_s, u"b"_s, u"x"_s, u"y"_s, u"z"_s}));

    // The tie-breaks turn with the flag.
    DataList::sortList(records, u"Date", true);
    QCOMPARE(detailsOf(records),
             (QStringList{u"z"_s, u"y"_s, u"x"_s, u"b"_s, u"B"_s, u"first"_s}));

    // An unknown key ties everywhere, so the tie-breaks alone decide.
    DataList::sortList(records, u"Nonsense");
    QCOMPARE(detailsOf(records),
             (QStringList{u"B"_s, u"b"_s, u"x"_s, u"y"_s, u"z"_s, u"first"_s}));
}

void TestDataList::sortIsTotalEvenWithNaN()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    PaymentArray records;
    for (int i = 0; i < 200; ++i)
        records.append(record(2006, 5, 1 + i % 28, 0, QString::number(i), i % 7 ? float(i % 13) : nan));
    DataList::sortList(records, u"Amount");
    for (qsizetype i = 1; i < records.size(); ++i)
        QVERIFY(DataList::compareRecords(*records[i - 1], *records[i], PaymentData::Key::Amount, false) <= 0);
    QVERIFY(qIsNaN(records.constFirst()->amount()));
}

void TestDataList::sortwithKeyTogglesTheSelection()
{
    auto list = listOf({record(2006, 5, 1, 0, u"a"_s, 5), record(2006, 5, 2, 0, u"b"_s, 300),
                        record(2006, 5, 3, 0, u"c"_s, 20)});
    // First (5) before last (20): the selection runs smallest first, so it
    // turns to largest first; then back.
    list->sortwithKey(u"Amount");
    QCOMPARE(detailsOf(list->extractedArray()), (QStringList{u"b"_s, u"c"_s, u"a"_s}));
    list->sortwithKey(u"Amount");
    QCOMPARE(detailsOf(list->extractedArray()), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
    list->sortwithKey(u"Amount");
    QCOMPARE(detailsOf(list->extractedArray()), (QStringList{u"b"_s, u"c"_s, u"a"_s}));
    // The stored records keep their own order.
    QCOMPARE(detailsOf(list->dataListArray()), (QStringList{u"a"_s, u"b"_s, u"c"_s}));

    MonthDataList empty(2006, 5);
    empty.sortwithKey(u"Amount"); // nothing to sort, nothing breaks
    QVERIFY(empty.extractedArray().isEmpty());
}

void TestDataList::extractionTotalsAreAsymmetric()
{
    TestLedgerController controller; // income is category 2
    auto list = listOf({record(2006, 5, 1, 0, u"a"_s, 100), record(2006, 5, 2, 2, u"pay"_s, 3000),
                        record(2006, 5, 3, 1, u"b"_s, 50.5f)});
    // Showing everything: the total includes the income.
    QCOMPARE(list->extractedTotal(), 3150.5f);
    QCOMPARE(list->extractedIncomeTotal(), 3000.0f);
    QCOMPARE(list->extractedArray().size(), 3);

    // An otherwise empty search still filters, and sums income apart.
    ExtractKeyDict keys;
    keys.incomeNumber = 2;
    list->setextractKeyDict(keys);
    list->extractList();
    QCOMPARE(list->extractedArray().size(), 3);
    QCOMPARE(list->extractedTotal(), 150.5f);
    QCOMPARE(list->extractedIncomeTotal(), 3000.0f);

    // Without an income number every selected amount is spending.
    ExtractKeyDict byDay;
    byDay.date = QList<int>{2, 3};
    list->setextractKeyDict(byDay);
    list->extractList();
    QCOMPARE(detailsOf(list->extractedArray()), (QStringList{u"pay"_s, u"b"_s}));
    QCOMPARE(list->extractedTotal(), 3050.5f);
    QCOMPARE(list->extractedIncomeTotal(), 0.0f);
}

void TestDataList::extractionKeysComeBackAfterExtractAll()
{
    TestLedgerController controller;
    auto list = controller.monthList(2006, 5);
    list->addData({record(2006, 5, 1, 0, u"a"_s, 1), record(2006, 5, 2, 1, u"b"_s, 2)});
    ExtractKeyDict keys;
    keys.category = QList<int>{1};
    list->setextractKeyDict(keys);
    list->extractList();
    QCOMPARE(detailsOf(list->extractedArray()), QStringList{u"b"_s});

    list->extractAll();
    QCOMPARE(list->extractedArray().size(), 2);
    // The next change re-applies the search that was never cleared.
    list->addData({record(2006, 5, 3, 1, u"c"_s, 3)});
    QCOMPARE(detailsOf(list->extractedArray()), (QStringList{u"b"_s, u"c"_s}));
}

void TestDataList::changeCycleSortsRecalculatesAndNotifies()
{
    TestLedgerController controller;
    auto list = controller.monthList(2006, 5);
    QSignalSpy spy(Notifications::instance(), &Notifications::dataListHasChanged);
    QVERIFY(!list->isEdited());

    list->addData({record(2006, 5, 20, 0, u"late"_s, 7), record(2006, 5, 2, 0, u"early"_s, 5)});
    QVERIFY(list->isEdited());
    QCOMPARE(detailsOf(list->dataListArray()), (QStringList{u"early"_s, u"late"_s}));
    QCOMPARE(list->grandTotal(), 12.0f);
    QCOMPARE(list->extractedArray().size(), 2);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<DataList *>(), list.get());

    // The quiet half of the cycle posts nothing.
    list->setIsEdited(false);
    list->dataHasChanged();
    QVERIFY(list->isEdited());
    QCOMPARE(spy.size(), 1);
}

void TestDataList::addingRecordsOfAnotherMonthMovesThem()
{
    TestLedgerController controller;
    auto may = controller.monthList(2006, 5);
    auto june = controller.monthList(2006, 6);
    QSignalSpy spy(Notifications::instance(), &Notifications::dataListHasChanged);

    auto stray = record(2006, 6, 1, 0, u"june"_s, 2);
    may->addData({record(2006, 5, 1, 0, u"may"_s, 1), stray, record(2007, 5, 1, 0, u"next year"_s, 3)});
    QCOMPARE(detailsOf(may->dataListArray()), QStringList{u"may"_s});
    QCOMPARE(may->grandTotal(), 1.0f);
    QCOMPARE(june->dataListArray(), PaymentArray{stray});
    QCOMPARE(controller.monthList(2007, 5)->dataListArray().size(), 1);
    QVERIFY(june->isEdited());
    QCOMPARE(controller.moveCount, 2);
    // Both lists told the windows.
    QList<DataList *> posted;
    for (const auto &args : spy)
        posted.append(args.at(0).value<DataList *>());
    QVERIFY(posted.contains(may.get()));
    QVERIFY(posted.contains(june.get()));

    // A list's own array may be checked: the strays leave it, last first.
    auto march = controller.monthList(2006, 3);
    march->setDataListArray({record(2006, 3, 1, 0, u"stays"_s, 1), record(2006, 4, 1, 0, u"a"_s, 1),
                             record(2006, 4, 2, 0, u"b"_s, 1)});
    march->checkDateOfDataArray(march->dataListArray());
    QCOMPARE(detailsOf(march->dataListArray()), QStringList{u"stays"_s});
    QCOMPARE(detailsOf(controller.monthList(2006, 4)->dataListArray()),
             (QStringList{u"a"_s, u"b"_s}));
}

void TestDataList::deletionIsByIdentity()
{
    TestLedgerController controller;
    auto list = controller.monthList(2006, 5);
    auto one = record(2006, 5, 1, 0, u"same"_s, 5);
    auto twin = record(2006, 5, 1, 0, u"same"_s, 5);
    list->addData({one, twin, record(2006, 5, 2, 0, u"other"_s, 1)});
    list->setIsEdited(false);
    QSignalSpy spy(Notifications::instance(), &Notifications::dataListHasChanged);

    list->deleteData({twin});
    QCOMPARE(list->dataListArray().size(), 2);
    QVERIFY(list->dataListArray().contains(one));
    QVERIFY(!list->dataListArray().contains(twin));
    QCOMPARE(list->grandTotal(), 6.0f);
    QVERIFY(list->isEdited());
    QCOMPARE(spy.size(), 1);

    // A record that is not in the list changes nothing but still counts as a change.
    list->deleteData({record(2006, 5, 1, 0, u"same"_s, 5)});
    QCOMPARE(list->dataListArray().size(), 2);
}

void TestDataList::makeNewDataKeepsTodaysRecordInThisList()
{
    TestLedgerController controller;
    auto list = controller.monthList(1999, 1);
    list->makeNewData();
    QCOMPARE(list->dataListArray().size(), 1);
    const PaymentDataPtr fresh = list->dataListArray().constFirst();
    QCOMPARE(fresh->year(), QDate::currentDate().year());
    QVERIFY(fresh->initializing());
    QCOMPARE(controller.moveCount, 0);
    QVERIFY(list->isEdited());
}

void TestDataList::conversionMarksEdited()
{
    TestLedgerController controller;
    auto list = controller.monthList(2006, 5);
    list->setDataListArray({record(2006, 5, 1, 3, u"a"_s, 1, 3), record(2006, 5, 2, 5, u"b"_s, 2, 1)});
    const ConversionMap map{{3, 2}};
    list->convertCategory(map);
    QCOMPARE(list->dataListArray().at(0)->category(), 2);
    QCOMPARE(list->dataListArray().at(1)->category(), 5);
    QCOMPARE(list->categorySum().value(2), 1);
    QVERIFY(list->isEdited());

    list->setIsEdited(false);
    list->convertPayway(ConversionMap{{1, 0}});
    QCOMPARE(list->dataListArray().at(1)->payway(), 0);
    QCOMPARE(list->paywaySum().value(0), 2);
    QVERIFY(list->isEdited());
}

void TestDataList::summaryDoesNotMarkEdited()
{
    MonthDataList list(2006, 5);
    QCOMPARE(list.summary(), QString());
    list.setSummary(u"memo"_s);
    QCOMPARE(list.summary(), u"memo"_s);
    QVERIFY(!list.isEdited());
}

void TestDataList::recordEditReachesItsMonthList()
{
    TestLedgerController controller;
    auto list = controller.monthList(2006, 5);
    auto early = record(2006, 5, 1, 0, u"early"_s, 1);
    auto late = record(2006, 5, 9, 0, u"late"_s, 2);
    list->addData({early, late});
    list->setIsEdited(false);
    QSignalSpy spy(Notifications::instance(), &Notifications::dataListHasChanged);

    early->setDate(20);
    QVERIFY(list->isEdited());
    QCOMPARE(detailsOf(list->dataListArray()), (QStringList{u"late"_s, u"early"_s}));
    QCOMPARE(spy.size(), 1);

    // A new month addresses the new month's list; the move is the caller's step.
    early->setMonth(6);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(1).at(0).value<DataList *>(), controller.monthList(2006, 6).get());
    QVERIFY(list->dataListArray().contains(early));
}

void TestDataList::yearListGathersTheMonthsAsASnapshot()
{
    TestLedgerController controller;
    auto jan = controller.monthList(2006, 1);
    auto dec = controller.monthList(2006, 12);
    dec->addData({record(2006, 12, 1, 0, u"december"_s, 5)});
    jan->addData({record(2006, 1, 31, 2, u"pay"_s, 100), record(2006, 1, 1, 0, u"january"_s, 7)});

    const YearDataList year(2006, {jan.get(), nullptr, dec.get()});
    QCOMPARE(year.year(), 2006);
    QCOMPARE(year.month(), 0);
    QVERIFY(!year.isEdited());
    QCOMPARE(detailsOf(year.dataListArray()), (QStringList{u"january"_s, u"pay"_s, u"december"_s}));
    QCOMPARE(year.grandTotal(), 112.0f);
    QCOMPARE(year.incomeTotal(), 100.0f);
    QCOMPARE(year.extractedArray().size(), 3);

    // It shares the records but not later changes of the months.
    QCOMPARE(year.dataListArray().constFirst(), jan->dataListArray().constFirst());
    jan->addData({record(2006, 1, 2, 0, u"later"_s, 1)});
    QCOMPARE(year.dataListArray().size(), 3);

    const auto fromController = controller.listForYear(2006, 0);
    QCOMPARE(fromController->dataListArray().size(), 4);
}

QTEST_GUILESS_MAIN(TestDataList)
#include "tst_datalist.moc"
