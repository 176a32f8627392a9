#include "TestHelpers.h"
#include "TestLedgerController.h"

#include "model/ExtractKeyDict.h"
#include "model/MonthDataList.h"
#include "model/NumberValue.h"
#include "model/PaymentData.h"

#include <QDate>
#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;

class TestPaymentData : public QObject
{
    Q_OBJECT

private slots:
    void newRecordIsDatedTodayAndReportsOnlyOnceInitialized()
    {
        TestLedgerController controller;
        auto r = std::make_shared<PaymentData>();
        QCOMPARE(QDate(r->year(), r->month(), r->date()), QDate::currentDate());
        QVERIFY(r->initializing());
        // Its month is kept within the year.
        r->setMonth(0);
        QCOMPARE(r->month(), 1);
        r->setMonth(13);
        QCOMPARE(r->month(), 12);
        r->setYear(2006);
        r->setMonth(5);
        r->setAmount(5);
        QVERIFY(controller.editReports.isEmpty());

        r->setInitializing(false);
        r->setAmount(6);
        r->setDetails(u"b"_s);
        QCOMPARE(controller.editReports.size(), 2);
        QCOMPARE(controller.editReports.at(0), r);
        // The report reaches the list of the record's own month.
        QCOMPARE(r->dataList(), controller.listForYear(2006, 5));
        // A record read from a file reports at once.
        QVERIFY(!entry(2006, 5, 3, u"x"_s, 1, 0, 0)->initializing());
    }

    void dayIsNormalisedThroughTheCalendar_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("day");
        QTest::addColumn<int>("stored");
        QTest::newRow("31 April wraps to 1") << 2006 << 4 << 31 << 1;
        QTest::newRow("30 February 2006 wraps to 2") << 2006 << 2 << 30 << 2;
        QTest::newRow("29 February of a leap year stays") << 2008 << 2 << 29 << 29;
        QTest::newRow("31 December stays") << 2006 << 12 << 31 << 31;
        QTest::newRow("day 0 is the last of the month before") << 2006 << 3 << 0 << 28;
        QTest::newRow("month 13 of a file still finds a day") << 2006 << 13 << 31 << 31;
    }

    void dayIsNormalisedThroughTheCalendar()
    {
        QFETCH(int, year);
        QFETCH(int, month);
        QFETCH(int, day);
        QFETCH(int, stored);
        auto r = entry(year, month, 1, {}, 0, 0, 0);
        r->setDate(day);
        QCOMPARE(r->date(), stored);
        // The year and month never follow the wrap.
        QCOMPARE(r->year(), year);
        QCOMPARE(r->month(), month);
    }

    void keyedSettingChecksRanges_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("expected"); // the field afterwards

        QTest::newRow("year 1969 refused") << u"Year"_s << QVariant(1969) << QVariant(2006);
        QTest::newRow("year 1970 taken") << u"Year"_s << QVariant(1970) << QVariant(1970);
        QTest::newRow("year 2100 taken") << u"Year"_s << QVariant(2100) << QVariant(2100);
        QTest::newRow("year 2101 refused") << u"Year"_s << QVariant(2101) << QVariant(2006);
        QTest::newRow("year from typed text") << u"Year"_s << QVariant(u"2010"_s) << QVariant(2010);
        QTest::newRow("month 0 refused") << u"Month"_s << QVariant(0) << QVariant(5);
        QTest::newRow("month 12 taken") << u"Month"_s << QVariant(12) << QVariant(12);
        QTest::newRow("month 13 refused") << u"Month"_s << QVariant(13) << QVariant(5);
        QTest::newRow("day 0 refused") << u"Date"_s << QVariant(0) << QVariant(3);
        QTest::newRow("day 31 of May taken") << u"Date"_s << QVariant(31) << QVariant(31);
        QTest::newRow("day 32 refused") << u"Date"_s << QVariant(32) << QVariant(3);
        QTest::newRow("day from text with a tail") << u"Date"_s << QVariant(u"12th"_s) << QVariant(12);
        QTest::newRow("category unchecked") << u"Category"_s << QVariant(99) << QVariant(99);
        QTest::newRow("amount from text") << u"Amount"_s << QVariant(u"1234.5"_s)
                                          << QVariant(1234.5f);
        QTest::newRow("lower-case key ignored") << u"year"_s << QVariant(2010) << QVariant();
    }

    void keyedSettingChecksRanges()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(QVariant, expected);
        TestLedgerController controller;
        auto r = entry(2006, 5, 3, u"Lunch"_s, 800, 1, 0);
        const QString before = r->description();
        r->setData(value, key);
        if (!expected.isValid()) {
            QCOMPARE(r->description(), before);
            QVERIFY(controller.editReports.isEmpty());
            return;
        }
        QCOMPARE(r->dataForKey(key), expected);
        // A refused value reports nothing; a taken one reports once.
        const bool changed = r->description() != before;
        QCOMPARE(controller.editReports.size(), changed ? 1 : 0);
    }

    void namesAndDescriptions()
    {
        TestLedgerController controller;
        auto r = entry(2006, 5, 3, u"Lunch %1"_s, 800.9f, 0, 1);
        QCOMPARE(r->categoryAsName(), u"Food"_s);
        QCOMPARE(r->paywayAsName(), u"Card"_s);
        QCOMPARE(r->descriptionForScript(), u"2006/5/3\tFood\tLunch %1\t800\tCard"_s);
        QCOMPARE(r->description(),
                 u"Day:2006/5/3 Category:0 Details:Lunch %1 Amount:800.900024 Payway:1"_s);

        // Amounts are truncated toward zero, not rounded.
        r->setAmount(-3.7f);
        QVERIFY(r->descriptionForScript().contains(u"\t-3\t"));

        // An index beyond the lists has no name (and does not crash).
        r->setCategory(7);
        r->setPayway(-1);
        QCOMPARE(r->categoryAsName(), QString());
        QCOMPARE(r->paywayAsName(), QString());
    }

    void textAndNumberValues_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("integer");
        QTest::addColumn<float>("real");
        QTest::newRow("plain digits") << QVariant(u"42"_s) << 42 << 42.0f;
        QTest::newRow("leading blanks and sign") << QVariant(u"  -5x"_s) << -5 << -5.0f;
        QTest::newRow("fraction is cut for integers") << QVariant(u"12.9"_s) << 12 << 12.9f;
        QTest::newRow("no number") << QVariant(u"abc"_s) << 0 << 0.0f;
        QTest::newRow("empty") << QVariant(u""_s) << 0 << 0.0f;
        QTest::newRow("fraction without integer part") << QVariant(u".5"_s) << 0 << 0.5f;
        QTest::newRow("exponent") << QVariant(u"1e3"_s) << 1 << 1000.0f;
        QTest::newRow("overflowing text saturates")
            << QVariant(u"99999999999999999999"_s) << std::numeric_limits<int>::max() << 1e20f;
        QTest::newRow("float truncates toward zero") << QVariant(-12.9) << -12 << -12.9f;
        QTest::newRow("huge double saturates")
            << QVariant(1e30) << std::numeric_limits<int>::max() << 1e30f;
        QTest::newRow("NaN is zero") << QVariant(std::numeric_limits<double>::quiet_NaN()) << 0
                                     << std::numeric_limits<float>::quiet_NaN();
    }

    void textAndNumberValues()
    {
        QFETCH(QVariant, value);
        QFETCH(int, integer);
        QFETCH(float, real);
        QCOMPARE(integerValueOf(value), integer);
        if (qIsNaN(real))
            QVERIFY(qIsNaN(floatValueOf(value)));
        else
            QCOMPARE(floatValueOf(value), real);
    }

    void matchingFollowsEveryKeyPresent_data()
    {
        // The record under test: day 15, category 1, "Lunch at work", 100, payway 2.
        QTest::addColumn<ExtractKeyDict>("keys");
        QTest::addColumn<bool>("passes");

        auto keys = [](auto set) {
            ExtractKeyDict k;
            set(k);
            return k;
        };
        QTest::newRow("no key") << ExtractKeyDict{} << true;
        QTest::newRow("day listed") << keys([](auto &k) { k.date = QList<int>{1, 15}; }) << true;
        QTest::newRow("day not listed") << keys([](auto &k) { k.date = QList<int>{1, 16}; }) << false;
        QTest::newRow("empty day list") << keys([](auto &k) { k.date = QList<int>{}; }) << false;
        QTest::newRow("Month key compares the day")
            << keys([](auto &k) { k.month = QList<int>{15}; }) << true;
        QTest::newRow("Month key ignores the month")
            << keys([](auto &k) { k.month = QList<int>{5}; }) << false;
        QTest::newRow("Year key compares the day")
            << keys([](auto &k) { k.year = QList<int>{2006}; }) << false;
        QTest::newRow("category") << keys([](auto &k) { k.category = QList<int>{0, 1}; }) << true;
        QTest::newRow("other category") << keys([](auto &k) { k.category = QList<int>{0}; }) << false;
        QTest::newRow("any keyword") << keys([](auto &k) { k.details = QStringList{u"x"_s, u"work"_s}; })
                                     << true;
        QTest::newRow("an empty keyword among others")
            << keys([](auto &k) { k.details = QStringList{u""_s, u"at"_s}; }) << true;
        QTest::newRow("keywords are case-sensitive")
            << keys([](auto &k) { k.details = QStringList{u"lunch"_s}; }) << false;
        QTest::newRow("empty keywords match nothing")
            << keys([](auto &k) { k.details = QStringList{u""_s, u""_s}; }) << false;
        QTest::newRow("maximum equal to amount") << keys([](auto &k) { k.amountMax = 100; }) << true;
        QTest::newRow("maximum below amount") << keys([](auto &k) { k.amountMax = 99; }) << false;
        QTest::newRow("minimum equal to amount") << keys([](auto &k) { k.amountMin = 100; }) << true;
        QTest::newRow("minimum above amount") << keys([](auto &k) { k.amountMin = 101; }) << false;
        QTest::newRow("negative minimum") << keys([](auto &k) { k.amountMin = -5; }) << true;
        QTest::newRow("maximum below minimum") << keys([](auto &k) {
            k.amountMax = 50;
            k.amountMin = 150;
        }) << false;
        QTest::newRow("payway") << keys([](auto &k) { k.payway = QList<int>{2}; }) << true;
        QTest::newRow("other payway") << keys([](auto &k) { k.payway = QList<int>{0}; }) << false;
        QTest::newRow("income number alone") << keys([](auto &k) { k.incomeNumber = 1; }) << true;
        QTest::newRow("one failing key of several") << keys([](auto &k) {
            k.date = QList<int>{15};
            k.category = QList<int>{1};
            k.payway = QList<int>{3};
        }) << false;
    }

    void matchingFollowsEveryKeyPresent()
    {
        QFETCH(ExtractKeyDict, keys);
        QFETCH(bool, passes);
        auto r = entry(2006, 5, 15, u"Lunch at work"_s, 100, 1, 2);
        QCOMPARE(r->isRequestedData(keys), passes);

        // A record without details never passes a keyword test.
        if (keys.details) {
            auto blank = entry(2006, 5, 15, {}, 100, 1, 2);
            QVERIFY(!blank->isRequestedData(keys));
        }
    }
};

QTEST_GUILESS_MAIN(TestPaymentData)
#include "tst_paymentdata.moc"
