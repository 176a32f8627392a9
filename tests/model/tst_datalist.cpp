#include "TestHelpers.h"
#include "TestLedgerController.h"

#include "model/Notifications.h"
#include "model/YearDataList.h"

#include <QSignalSpy>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

// A month list filled as a file would fill it, without the change cycle.
std::shared_ptr<MonthDataList> listOf(const PaymentArray &records)
{
    auto list = std::make_shared<MonthDataList>(2006, 5);
    list->setDataListArray(records);
    list->calcSumOfData();
    list->extractAll();
    return list;
}

void search(DataList &list, const ExtractKeyDict &keys)
{
    list.setextractKeyDict(keys);
    list.extractList();
}

} // namespace

class TestDataList : public QObject
{
    Q_OBJECT

private slots:
    void incomeIsTheLastCategory()
    {
        const PaymentArray records{entry(2006, 5, 1, u"a"_s, 1000), entry(2006, 5, 2, u"b"_s, 3000, 2),
                                   entry(2006, 5, 3, u"c"_s, 12.5f, 1)};
        // Without a controller nothing is income.
        auto alone = listOf(records);
        QCOMPARE(alone->incomeTotal(), 0.0f);
        QCOMPARE(alone->expendTotal(), 4012.5);
        QVERIFY(alone->categoryList().isEmpty());

        TestLedgerController controller; // Food, Rent, Income
        auto list = listOf(records + PaymentArray{entry(2006, 5, 4, u"stray"_s, 5, 7)});
        QCOMPARE(list->grandTotal(), 4017.5f);
        QCOMPARE(list->incomeTotal(), 3000.0f);
        QCOMPARE(list->expendTotal(), 1017.5);
        // One sum a category of the list, none for a stray number.
        QCOMPARE(list->categoryList(), (QList<int>{1000, 12, 3000}));
    }

    void totalsOfTheSameEntriesAgree()
    {
        TestLedgerController controller;
        // A month of amounts with cents: summed in float as they come, the
        // total drifts by more than a cent from the sum of what was booked.
        PaymentArray records;
        double exact = 0;
        for (int i = 0; i < 400; ++i) {
            const float amount = 1234.57f + float(i % 7) * 0.11f;
            exact += amount;
            records.append(entry(2006, 5, 1 + i % 28, QString::number(i), amount, i % 2));
        }
        records.append(entry(2006, 5, 25, u"salary"_s, 320000, 2));
        auto list = listOf(records);
        // In cents: QCOMPARE would forgive floats a relative 1e-5, which is
        // several units here.
        const auto cents = [](double value) { return qRound64(value * 100); };
        QCOMPARE(cents(list->expendTotal()), cents(exact));

        // A search that selects every spending entry shows the same spending.
        ExtractKeyDict keys;
        keys.incomeNumber = 2;
        keys.category = QList<int>{0, 1};
        search(*list, keys);
        QCOMPARE(cents(list->extractedTotal()), cents(list->expendTotal()));
    }

    void categorySumsTruncateAfterEveryAddition()
    {
        TestLedgerController controller;
        auto list = listOf({entry(2006, 5, 1, u"a"_s, 0.6f, 0, 1), entry(2006, 5, 1, u"b"_s, 0.6f, 0, 1),
                            entry(2006, 5, 1, u"c"_s, -2.5f, 1), entry(2006, 5, 1, u"d"_s, 1.9f, 1)});
        QCOMPARE(list->categorySum().value(0), 0);
        QCOMPARE(list->paywaySum().value(1), 0);
        QVERIFY(qFuzzyCompare(list->grandTotal(), double(0.6f) + double(0.6f) - 2.5 + double(1.9f)));
        // -2.5 truncates to -2, then -2 + 1.9 to 0: toward zero each time.
        QCOMPARE(list->categorySum().value(1), 0);
        QCOMPARE(list->paywaySum().value(0), 0);
        QVERIFY(!list->categorySum().contains(2));

        // Sums saturate instead of overflowing, and a NaN amount counts as nothing.
        auto extreme = listOf({entry(2006, 5, 1, u"a"_s, 3e9f),
                               entry(2006, 5, 1, u"b"_s, std::numeric_limits<float>::quiet_NaN(), 1)});
        QCOMPARE(extreme->categorySum().value(0), std::numeric_limits<int>::max());
        QCOMPARE(extreme->categorySum().value(1), 0);
    }

    void sortOrders_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("descend");
        QTest::addColumn<QStringList>("order");
        // Records: z 4th cat 1 10; y 4th 30; x 4th 20; b 4th 20; B 4th 20;
        // first 1st cat 9 99; the rest category 0.
        QTest::newRow("amount, largest first") << u"Amount"_s << true << words(u"first y x b B z"_s);
        QTest::newRow("amount") << u"Amount"_s << false << words(u"z B b x y first"_s);
        QTest::newRow("details") << u"Details"_s << false << words(u"B b first x y z"_s);
        // Ties go by category, amount, details; details compare literally.
        QTest::newRow("date") << u"Date"_s << false << words(u"first B b x y z"_s);
        QTest::newRow("date, turned with its tie-breaks") << u"Date"_s << true << words(u"z y x b B first"_s);
        // An unknown key ties everywhere, so the tie-breaks alone decide.
        QTest::newRow("unknown key") << u"Nonsense"_s << false << words(u"B b x y z first"_s);
    }

    void sortOrders()
    {
        QFETCH(QString, key);
        QFETCH(bool, descend);
        QFETCH(QStringList, order);
        PaymentArray records{entry(2006, 5, 4, u"z"_s, 10, 1), entry(2006, 5, 4, u"y"_s, 30),
                             entry(2006, 5, 4, u"x"_s, 20), entry(2006, 5, 4, u"b"_s, 20),
                             entry(2006, 5, 4, u"B"_s, 20), entry(2006, 5, 1, u"first"_s, 99, 9)};
        std::reverse(records.begin(), records.end());
        DataList::sortList(records, key, descend);
        QCOMPARE(detailsOf(records), order);
    }

    void sortIsTotalEvenWithNaN()
    {
        const float nan = std::numeric_limits<float>::quiet_NaN();
        PaymentArray records;
        for (int i = 0; i < 200; ++i)
            records.append(entry(2006, 5, 1 + i % 28, QString::number(i), i % 7 ? float(i % 13) : nan));
        DataList::sortList(records, u"Amount");
        for (qsizetype i = 1; i < records.size(); ++i)
            QVERIFY(DataList::compareRecords(*records[i - 1], *records[i], PaymentData::Key::Amount, false) <= 0);
        QVERIFY(qIsNaN(records.constFirst()->amount()));
    }

    void sortwithKeyTogglesTheSelection()
    {
        auto list = listOf({entry(2006, 5, 1, u"a"_s, 5), entry(2006, 5, 2, u"b"_s, 300),
                            entry(2006, 5, 3, u"c"_s, 20)});
        // First (5) before last (20): the selection runs smallest first, so it
        // turns to largest first; then back.
        list->sortwithKey(u"Amount");
        QCOMPARE(detailsOf(list->extractedArray()), (QStringList{u"b"_s, u"c"_s, u"a"_s}));
        list->sortwithKey(u"Amount");
        QCOMPARE(detailsOf(list->extractedArray()), (QStringList{u"a"_s, u"c"_s, u"b"_s}));
        // The stored records keep their own order.
        QCOMPARE(detailsOf(list->dataListArray()), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
        MonthDataList empty(2006, 5);
        empty.sortwithKey(u"Amount"); // nothing to sort, nothing breaks
    }

    void extractionTotalsAreAsymmetric()
    {
        TestLedgerController controller; // income is category 2
        auto list = controller.monthList(2006, 5);
        list->addData({entry(2006, 5, 1, u"a"_s, 100), entry(2006, 5, 2, u"pay"_s, 3000, 2),
                       entry(2006, 5, 3, u"b"_s, 50.5f, 1)});
        // Showing everything: the total includes the income.
        QCOMPARE(list->extractedTotal(), 3150.5f);
        QCOMPARE(list->extractedIncomeTotal(), 3000.0f);

        // An otherwise empty search still filters, and sums income apart.
        ExtractKeyDict keys;
        keys.incomeNumber = 2;
        search(*list, keys);
        QCOMPARE(list->extractedArray().size(), 3);
        QCOMPARE(list->extractedTotal(), 150.5f);
        QCOMPARE(list->extractedIncomeTotal(), 3000.0f);

        // Without an income number every selected amount is spending.
        ExtractKeyDict byDay;
        byDay.date = QList<int>{2, 3};
        search(*list, byDay);
        QCOMPARE(detailsOf(list->extractedArray()), (QStringList{u"pay"_s, u"b"_s}));
        QCOMPARE(list->extractedTotal(), 3050.5f);
        QCOMPARE(list->extractedIncomeTotal(), 0.0f);

        // Showing all keeps the keys: the next change applies them again.
        list->extractAll();
        QCOMPARE(list->extractedArray().size(), 3);
        list->addData({entry(2006, 5, 3, u"c"_s, 60, 1)});
        QCOMPARE(detailsOf(list->extractedArray()), (QStringList{u"pay"_s, u"b"_s, u"c"_s}));
    }

    void changeCycleSortsRecalculatesAndNotifies()
    {
        TestLedgerController controller;
        auto list = controller.monthList(2006, 5);
        QSignalSpy spy(Notifications::instance(), &Notifications::dataListHasChanged);
        const auto late = entry(2006, 5, 20, u"late"_s, 7);
        list->addData({late, entry(2006, 5, 2, u"early"_s, 5)});
        QVERIFY(list->isEdited());
        QCOMPARE(detailsOf(list->dataListArray()), (QStringList{u"early"_s, u"late"_s}));
        QCOMPARE(list->grandTotal(), 12.0f);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.at(0).at(0).value<DataList *>(), list.get());

        // An edit of a record reaches its list, which sorts again.
        list->setIsEdited(false);
        late->setDate(1);
        QVERIFY(list->isEdited());
        QCOMPARE(detailsOf(list->dataListArray()), (QStringList{u"late"_s, u"early"_s}));
        QCOMPARE(spy.size(), 2);

        // The quiet half of the cycle posts nothing.
        list->setIsEdited(false);
        list->dataHasChanged();
        QVERIFY(list->isEdited());
        QCOMPARE(spy.size(), 2);
    }

    void addingRecordsOfAnotherMonthMovesThem()
    {
        TestLedgerController controller;
        auto may = controller.monthList(2006, 5);
        auto june = controller.monthList(2006, 6);
        QSignalSpy spy(Notifications::instance(), &Notifications::dataListHasChanged);

        auto stray = entry(2006, 6, 1, u"june"_s, 2);
        may->addData({entry(2006, 5, 1, u"may"_s, 1), stray, entry(2007, 5, 1, u"next year"_s, 3)});
        QCOMPARE(detailsOf(may->dataListArray()), QStringList{u"may"_s});
        QCOMPARE(may->grandTotal(), 1.0f);
        QCOMPARE(june->dataListArray(), PaymentArray{stray});
        QCOMPARE(controller.monthList(2007, 5)->dataListArray().size(), 1);
        QVERIFY(june->isEdited());
        QCOMPARE(controller.moveCount, 2);
        QList<DataList *> posted;
        for (const auto &args : spy)
            posted.append(args.at(0).value<DataList *>());
        QVERIFY(posted.contains(may.get()) && posted.contains(june.get()));

        // A list's own array may be checked: the strays leave it.
        auto march = controller.monthList(2006, 3);
        march->setDataListArray({entry(2006, 3, 1, u"stays"_s), entry(2006, 4, 1, u"a"_s),
                                 entry(2006, 4, 2, u"b"_s)});
        march->checkDateOfDataArray(march->dataListArray());
        QCOMPARE(detailsOf(march->dataListArray()), QStringList{u"stays"_s});
        QCOMPARE(detailsOf(controller.monthList(2006, 4)->dataListArray()),
                 (QStringList{u"a"_s, u"b"_s}));
    }

    void deletionIsByIdentity()
    {
        TestLedgerController controller;
        auto list = controller.monthList(2006, 5);
        auto one = entry(2006, 5, 1, u"same"_s, 5);
        auto twin = entry(2006, 5, 1, u"same"_s, 5);
        list->addData({one, twin, entry(2006, 5, 2, u"other"_s, 1)});
        list->setIsEdited(false);
        QSignalSpy spy(Notifications::instance(), &Notifications::dataListHasChanged);

        list->deleteData({twin});
        QCOMPARE(list->dataListArray().size(), 2);
        QVERIFY(list->dataListArray().contains(one));
        QCOMPARE(list->grandTotal(), 6.0f);
        QVERIFY(list->isEdited());
        QCOMPARE(spy.size(), 1);
        list->deleteData({entry(2006, 5, 1, u"same"_s, 5)}); // not in the list
        QCOMPARE(list->dataListArray().size(), 2);
    }

    void makeNewDataKeepsTodaysRecordInThisList()
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

    void conversionMarksEdited()
    {
        TestLedgerController controller;
        auto list = controller.monthList(2006, 5);
        list->setDataListArray({entry(2006, 5, 1, u"a"_s, 1, 3, 3), entry(2006, 5, 2, u"b"_s, 2, 5, 1)});
        list->convertCategory(ConversionMap{{3, 2}});
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

    void yearListGathersTheMonthsAsASnapshot()
    {
        TestLedgerController controller;
        auto jan = controller.monthList(2006, 1);
        auto dec = controller.monthList(2006, 12);
        dec->addData({entry(2006, 12, 1, u"december"_s, 5)});
        jan->addData({entry(2006, 1, 31, u"pay"_s, 100, 2), entry(2006, 1, 1, u"january"_s, 7)});

        const YearDataList year(2006, {jan.get(), nullptr, dec.get()});
        QCOMPARE(year.month(), 0);
        QVERIFY(!year.isEdited());
        QCOMPARE(detailsOf(year.dataListArray()), (QStringList{u"january"_s, u"pay"_s, u"december"_s}));
        QCOMPARE(year.grandTotal(), 112.0f);
        QCOMPARE(year.incomeTotal(), 100.0f);
        QCOMPARE(year.extractedArray().size(), 3);

        // It shares the records but not later changes of the months.
        QCOMPARE(year.dataListArray().constFirst(), jan->dataListArray().constFirst());
        jan->addData({entry(2006, 1, 2, u"later"_s, 1)});
        QCOMPARE(year.dataListArray().size(), 3);
        QCOMPARE(controller.listForYear(2006, 0)->dataListArray().size(), 4);
    }
};

QTEST_GUILESS_MAIN(TestDataList)
#include "tst_datalist.moc"
