#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "graph/ChartData.h"
#include "graph/LedgerChartSource.h"
#include "graph/MonthStepping.h"
#include "graph/ScaleRounding.h"
#include "ledger/KController.h"
#include "settings/Settings.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestChartData : public QObject
{
    Q_OBJECT

private slots:
    void roundUpMaxKeepsTwoOrThreeDigits_data()
    {
        QTest::addColumn<qint64>("n");
        QTest::addColumn<qint64>("expected");
        const std::pair<qint64, qint64> cases[] = {
            {0, 1},         {57, 58},       {100, 101},  {101, 110},  {999, 1000},
            {1000, 1010},   {12345, 13000}, {98765, 99000}, {-5, -4},
            {5000000000, 5100000000},
        };
        for (const auto &[n, expected] : cases)
            QTest::addRow("%lld", n) << n << expected;
    }

    void roundUpMaxKeepsTwoOrThreeDigits()
    {
        QFETCH(qint64, n);
        QFETCH(qint64, expected);
        QCOMPARE(roundUpMax(n), expected);
    }

    void roundUpAndRoundK_data()
    {
        QTest::addColumn<qint64>("n");
        QTest::addColumn<int>("digits");
        QTest::addColumn<qint64>("up");
        QTest::addColumn<qint64>("k");
        QTest::newRow("12345, 2") << qint64(12345) << 2 << qint64(13000) << qint64(12000);
        QTest::newRow("12345, 1") << qint64(12345) << 1 << qint64(20000) << qint64(10000);
        QTest::newRow("15678, 2") << qint64(15678) << 2 << qint64(16000) << qint64(16000);
        QTest::newRow("56000, 1") << qint64(56000) << 1 << qint64(60000) << qint64(60000);
        // No division: roundK still adds one when the last digit is 5 or more.
        QTest::newRow("7, 1") << qint64(7) << 1 << qint64(8) << qint64(8);
        QTest::newRow("95, 2") << qint64(95) << 2 << qint64(96) << qint64(96);
        QTest::newRow("100, 2") << qint64(100) << 2 << qint64(101) << qint64(100);
        QTest::newRow("101, 2") << qint64(101) << 2 << qint64(110) << qint64(100);
    }

    void roundUpAndRoundK()
    {
        QFETCH(qint64, n);
        QFETCH(int, digits);
        QFETCH(qint64, up);
        QFETCH(qint64, k);
        QCOMPARE(roundUp(n, digits), up);
        QCOMPARE(roundK(n, digits), k);
    }

    void amountAxisLabels_data()
    {
        QTest::addColumn<qint64>("largest");
        QTest::addColumn<int>("count");
        QTest::addColumn<QList<qint64>>("labels");
        // Uneven steps, each label rounded on its own, are the line chart's test.
        QTest::newRow("empty year") << qint64(0) << 4 << QList<qint64>{0, 0, 0, 1};
        QTest::newRow("no room") << qint64(500) << 0 << QList<qint64>{};
    }

    void amountAxisLabels()
    {
        QFETCH(qint64, largest);
        QFETCH(int, count);
        QFETCH(QList<qint64>, labels);
        QCOMPARE(amountAxisValues(roundUpMax(largest), count), labels);
    }

    void totalsCountCheckedCategoriesOnly()
    {
        const ChartData chart({{2008, 1, {{0, 1000}, {1, 250}, {2, 9000}}},
                               {2008, 2, {{0, 3000}, {2, 50}}}},
                              {true, true, false});
        QCOMPARE(chart.calculateTotalOfData(chart.entries().at(0).data), 1250);
        QCOMPARE(chart.calculateMaxTotal(), 3000);
        QCOMPARE(chart.maxAmountOfCategories(3), 3000);
        // Categories beyond the check flags never count.
        QCOMPARE(chart.calculateTotalOfData({{7, 500}}), 0);
        QCOMPARE(chart.amountOf(1, 1), 0);
        QCOMPARE(chart.amountOf(0, 1), 250);
        QCOMPARE(chart.amountOf(5, 0), 0);
    }

    void maximaNeverFallBelowZero()
    {
        const ChartData empty({{2008, 1, {}}}, {true, true});
        QCOMPARE(empty.calculateMaxTotal(), 0);
        QCOMPARE(empty.maxAmountOfCategories(2), 0);

        const ChartData unchecked({{2008, 1, {{1, 400}}}}, {true, false});
        QCOMPARE(unchecked.calculateMaxTotal(), 0);
        QCOMPARE(unchecked.maxAmountOfCategories(2), 0);

        const ChartData refunds({{2008, 1, {{0, -700}}}}, {true});
        QCOMPARE(refunds.calculateTotalOfData(refunds.entries().at(0).data), -700);
        QCOMPARE(refunds.calculateMaxTotal(), 0);
        QCOMPARE(refunds.maxAmountOfCategories(1), 0);
    }

    void monthRequestsRollOverYears()
    {
        const ChartEntries bars = ChartData::monthsEndingAt(2008, 1, 3);
        QCOMPARE(bars, (ChartEntries{{2007, 11, {}}, {2007, 12, {}}, {2008, 1, {}}}));
        QCOMPARE(ChartData::monthsEndingAt(2008, 5, 1), (ChartEntries{{2008, 5, {}}}));

        const ChartEntries year = ChartData::monthsOfYear(2006);
        QCOMPARE(year.size(), 12);
        QCOMPARE(year.last(), (ChartEntry{2006, 12, {}}));
    }

    void stepperValueStaysAMonth_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("expected");
        QTest::newRow("back from January") << 200800 << 200712;
        QTest::newRow("on from December") << 200713 << 200801;
        QTest::newRow("within the year") << 200806 << 200806;
    }

    void stepperValueStaysAMonth()
    {
        QFETCH(int, value);
        QFETCH(int, expected);
        QCOMPARE(MonthStepping::normalized(value), expected);
    }

    void bookingMonthFollowsTheClosingDay()
    {
        using MonthStepping::bookingMonth;
        QCOMPARE(bookingMonth(QDate(2007, 12, 26), false, 25), QDate(2007, 12, 1));
        QCOMPARE(bookingMonth(QDate(2007, 12, 25), true, 25), QDate(2007, 12, 1));
        QCOMPARE(bookingMonth(QDate(2007, 12, 26), true, 25), QDate(2008, 1, 1));
    }

    void ledgerSourceHonoursTheClosingDay()
    {
        TestDataFolder home;
        const QString folder = home.freshDataFolder();
        writeMonthFile(folder, 2006, 2, {entry(2006, 2, 10, {}, 100.7f), entry(2006, 2, 27, {}, 40, 1)});
        writeMonthFile(folder, 2006, 3, {entry(2006, 3, 3, {}, 5), entry(2006, 3, 28, {}, 999)});

        KController controller;
        controller.readListPreference();
        LedgerChartSource source(&controller);
        const ChartEntries asked{{2006, 2, {}}, {2006, 3, {}}, {2006, 4, {}}};

        QCOMPARE(source.chartEntries(asked),
                 (ChartEntries{{2006, 2, {{0, 100}, {1, 40}}}, {2006, 3, {{0, 1004}}}, {2006, 4, {}}}));

        Settings settings;
        settings.setChangeMonthLastDate(true);
        settings.setMonthLastDate(25);
        // March now runs from 26 February to 25 March.
        QCOMPARE(source.chartEntries(asked).at(1), (ChartEntry{2006, 3, {{0, 5}, {1, 40}}}));
    }
};

QTEST_GUILESS_MAIN(TestChartData)
#include "tst_chartdata.moc"
