#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "budget/BudgetAmount.h"
#include "budget/BudgetBook.h"
#include "budget/BudgetCalculation.h"
#include "budget/BudgetFile.h"
#include "ledger/KController.h"
#include "ledger/ListConversion.h"
#include "storage/ListFile.h"

#include <QSignalSpy>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using Line = BudgetCalculation::Line;

namespace {

// Categories 0 to 2 are spending, 3 is income.
constexpr int kIncome = 3;

struct Booking
{
    int yearMonth;
    int category;
    float amount;
};

CategoryBudget budget(double amount, QMap<int, double> months = {}, int rollOverSince = 0)
{
    return {amount, months, rollOverSince != 0, rollOverSince};
}

ListConversion conversionOf(const ConversionMap &map, int categoryCount)
{
    ListConversion conversion;
    conversion.categoryMap = map;
    QVariantList names;
    for (int i = 0; i < categoryCount; ++i)
        names.append(u"c%1"_s.arg(i));
    conversion.lists.insert(ListFile::CategoryList, names);
    return conversion;
}

} // namespace

Q_DECLARE_METATYPE(BudgetPlan)
Q_DECLARE_METATYPE(QList<Booking>)
Q_DECLARE_METATYPE(QList<Line>)
Q_DECLARE_METATYPE(std::optional<Line>)
Q_DECLARE_METATYPE(ConversionMap)
Q_DECLARE_METATYPE(std::optional<double>)

class TestBudget : public QObject
{
    Q_OBJECT

private slots:
    void figuresOfAMonth_data();
    void figuresOfAMonth();
    void renumbering_data();
    void renumbering();
    void unreadableFileIsLeftAlone_data();
    void unreadableFileIsLeftAlone();
    void typedAmounts_data();
    void typedAmounts();
    void changesAreUndoneByteForByte();

private:
    TestDataFolder m_home;
};

void TestBudget::figuresOfAMonth_data()
{
    QTest::addColumn<BudgetPlan>("plan");
    QTest::addColumn<QList<Booking>>("bookings");
    QTest::addColumn<QList<Line>>("lines");
    QTest::addColumn<std::optional<Line>>("total");

    // The month asked for is always March 2026.
    const QList<Booking> march{{202603, 0, 250.5f}, {202603, 0, 100}, {202603, 1, 80},
                               {202603, 2, 40}, {202603, kIncome, 5000}};
    QTest::newRow("default amount; income and other months left out")
        << BudgetPlan{{{0, budget(400)}}, {}}
        << (march + QList<Booking>{{202602, 0, 999}})
        << QList<Line>{{0, 350.5, 400, 0}} << std::optional<Line>(Line{-1, 350.5, 400, 0});
    QTest::newRow("the month's own amount replaces the default")
        << BudgetPlan{{{0, budget(400, {{202603, 300}, {202604, 900}})}, {1, budget(100)}}, {}}
        << march << QList<Line>{{0, 350.5, 300, 0}, {1, 80, 100, 0}}
        << std::optional<Line>(Line{-1, 430.5, 400, 0});
    QTest::newRow("nothing booked")
        << BudgetPlan{{{2, budget(50)}}, {}} << QList<Booking>{}
        << QList<Line>{{2, 0, 50, 0}} << std::optional<Line>(Line{-1, 0, 50, 0});
    QTest::newRow("rolling over: left in January, overspent in February")
        << BudgetPlan{{{1, budget(100, {{202602, 50}}, 202601)}}, {}}
        << (march + QList<Booking>{{202601, 1, 30}, {202602, 1, 90}, {202512, 1, 1000}})
        << QList<Line>{{1, 80, 100, 70 - 40}} << std::optional<Line>(Line{-1, 80, 100, 30});
    QTest::newRow("rolling over starting this month carries nothing")
        << BudgetPlan{{{1, budget(100, {}, 202603)}}, {}}
        << (march + QList<Booking>{{202602, 1, 10}})
        << QList<Line>{{1, 80, 100, 0}} << std::optional<Line>(Line{-1, 80, 100, 0});
    QTest::newRow("rolling over looks back ten years at most")
        << BudgetPlan{{{1, budget(10, {}, 190001)}}, {}} << QList<Booking>{}
        << QList<Line>{{1, 0, 10, 1200}} << std::optional<Line>(Line{-1, 0, 10, 1200});
    QTest::newRow("all spending counts unbudgeted categories too")
        << BudgetPlan{{{1, budget(100)}}, budget(600, {{202603, 500}})} << march
        << QList<Line>{{1, 80, 100, 0}} << std::optional<Line>(Line{-1, 470.5, 500, 0});
    QTest::newRow("all spending rolls over on its own")
        << BudgetPlan{{}, budget(500, {}, 202602)}
        << (march + QList<Booking>{{202602, 2, 450}, {202602, kIncome, 100}})
        << QList<Line>{} << std::optional<Line>(Line{-1, 470.5, 500, 50});
    QTest::newRow("no budget, no figures")
        << BudgetPlan{} << march << QList<Line>{} << std::optional<Line>();
}

void TestBudget::figuresOfAMonth()
{
    QFETCH(BudgetPlan, plan);
    QFETCH(QList<Booking>, bookings);
    QFETCH(QList<Line>, lines);
    QFETCH(std::optional<Line>, total);

    const int month = MonthKey::of(2026, 3);
    QMap<int, PaymentArray> records;
    for (const Booking &b : std::as_const(bookings))
        records[b.yearMonth].append(entry(b.yearMonth / 100, b.yearMonth % 100, 1, u"x"_s,
                                          b.amount, b.category));
    QMap<int, BudgetCalculation::Spending> spending;
    for (auto it = records.cbegin(); it != records.cend(); ++it)
        spending.insert(it.key(), BudgetCalculation::spendingOf(it.value(), kIncome));
    QVERIFY(BudgetCalculation::firstMonthNeeded(plan, month) >= MonthKey::added(month, -120));

    const BudgetCalculation::Report report = BudgetCalculation::report(plan, month, spending);
    QCOMPARE(report.categories, lines);
    QCOMPARE(report.total, total);
}

void TestBudget::renumbering_data()
{
    QTest::addColumn<ConversionMap>("map");
    QTest::addColumn<int>("categoryCount");
    QTest::addColumn<BudgetPlan>("before");
    QTest::addColumn<BudgetPlan>("after");

    const CategoryBudget food = budget(300, {{202603, 350}});
    const CategoryBudget rent = budget(800, {}, 202601);
    const CategoryBudget fun = budget(50, {{202604, 0}}, 202602);
    const CategoryBudget all = budget(2000);

    // Categories 0, 1, 2 and income 3 before every change.
    QTest::newRow("swap")
        << ConversionMap{{0, 1}, {1, 0}} << 4 << BudgetPlan{{{0, food}, {1, rent}}, all}
        << BudgetPlan{{{1, food}, {0, rent}}, all};
    QTest::newRow("merge adds up month by month, rolling over from the earlier start")
        << ConversionMap{{1, 0}, {2, 0}, {3, 1}} << 2
        << BudgetPlan{{{0, food}, {1, rent}, {2, fun}}, {}}
        << BudgetPlan{{{0, budget(1150, {{202603, 1200}, {202604, 1100}}, 202601)}}, {}};
    QTest::newRow("removed category loses its budget")
        << ConversionMap{{1, std::numeric_limits<int>::max()}, {2, 1}, {3, 2}} << 3
        << BudgetPlan{{{0, food}, {1, rent}, {2, fun}}, all}
        << BudgetPlan{{{0, food}, {1, fun}}, all};
    QTest::newRow("a category moved onto the income index loses its budget")
        << ConversionMap{{2, 3}, {3, 2}} << 4 << BudgetPlan{{{2, fun}}, {}} << BudgetPlan{};
    QTest::newRow("payways only: unchanged")
        << ConversionMap{} << 4 << BudgetPlan{{{2, fun}}, all} << BudgetPlan{{{2, fun}}, all};
}

void TestBudget::renumbering()
{
    QFETCH(ConversionMap, map);
    QFETCH(int, categoryCount);
    QFETCH(BudgetPlan, before);
    QFETCH(BudgetPlan, after);

    const auto content = BudgetFile::renumbered(BudgetFile::encode(before),
                                                conversionOf(map, categoryCount));
    QVERIFY(content);
    const auto plan = BudgetFile::decode(*content);
    QVERIFY(plan);
    QCOMPARE(*plan, after);
}

void TestBudget::unreadableFileIsLeftAlone_data()
{
    QTest::addColumn<QByteArray>("content");
    const auto plist = [](const QByteArray &body) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" + body
               + "</plist>";
    };
    QTest::newRow("garbage") << QByteArray("not a property list\x01\x02");
    QTest::newRow("no dictionary") << plist("<array/>");
    QTest::newRow("negative category")
        << plist("<dict><key>Categories</key><array><dict><key>Category</key><integer>-1"
                 "</integer><key>Amount</key><real>1</real></dict></array></dict>");
    QTest::newRow("amount as text")
        << plist("<dict><key>AllSpending</key><dict><key>Amount</key><string>1</string>"
                 "</dict></dict>");
    QTest::newRow("month 13")
        << plist("<dict><key>AllSpending</key><dict><key>Amount</key><real>1</real>"
                 "<key>Months</key><dict><key>202613</key><real>2</real></dict></dict></dict>");
}

void TestBudget::unreadableFileIsLeftAlone()
{
    QFETCH(QByteArray, content);
    const QString path = BudgetFile::pathIn(m_home.freshDataFolder());
    writeBytes(path, content);

    QVERIFY(!BudgetFile::renumbered(content, conversionOf({{0, 1}, {1, 0}}, 4)));
    KController ledger;
    BudgetBook &book = *ledger.budgets();
    QSignalSpy unreadable(&book, &BudgetBook::budgetFileUnreadable);
    book.load();
    QCOMPARE(unreadable.size(), 1);
    QVERIFY(!book.problem().isEmpty());
    QVERIFY(book.plan().isEmpty());
    QString error;
    QVERIFY(!book.changePlan([](BudgetPlan &plan) { plan.categories.insert(0, budget(10)); },
                             &error));
    QVERIFY(error.contains(book.problem()));
    QCOMPARE(readBytes(path), content);
}

void TestBudget::typedAmounts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<std::optional<double>>("amount");
    QTest::addColumn<bool>("refused");
    QTest::newRow("arithmetic") << u" 1,200+350*2 "_s << std::optional(1900.0) << false;
    QTest::newRow("cents") << u"99.5"_s << std::optional(99.5) << false;
    QTest::newRow("empty: no budget") << u"  "_s << std::optional<double>() << false;
    QTest::newRow("a word") << u"12 yen"_s << std::optional<double>() << true;
    QTest::newRow("no digit") << u"+"_s << std::optional<double>() << true;
    QTest::newRow("below zero") << u"100-150"_s << std::optional<double>() << true;
    QTest::newRow("division by zero") << u"5/0"_s << std::optional<double>() << true;
}

void TestBudget::typedAmounts()
{
    QFETCH(QString, text);
    QFETCH(std::optional<double>, amount);
    QFETCH(bool, refused);
    QString problem;
    QCOMPARE(BudgetAmount::read(text, &problem), amount);
    QCOMPARE(!problem.isEmpty(), refused);
    if (amount)
        QCOMPARE(BudgetAmount::read(BudgetAmount::editingText(*amount), &problem), amount);
}

// Each change of the budgets is one step of the undo history; taking it back
// never throws away what another computer wrote since.
void TestBudget::changesAreUndoneByteForByte()
{
    const QString path = BudgetFile::pathIn(m_home.freshDataFolder());
    KController ledger;
    QList<KController::Change> recorded;
    connect(&ledger, &KController::changeRecorded, this,
            [&recorded](const KController::Change &change) { recorded.append(change); });
    BudgetBook &book = *ledger.budgets();
    const auto set = [&book](int category, double amount) {
        return book.changePlan(
            [=](BudgetPlan &plan) { plan.categories.insert(category, budget(amount)); });
    };
    QVERIFY(set(0, 100));
    const QByteArray first = readBytes(path);
    QVERIFY(set(1, 50));
    const QByteArray second = readBytes(path);
    QVERIFY(set(1, 50)); // no change, no step
    QCOMPARE(recorded.size(), 2);
    const KController::Change step = recorded.constLast();
    QVERIFY(step.months.isEmpty() && !step.changesLists());

    QString error;
    for (const bool before : {true, false}) {
        QVERIFY2(ledger.restoreChange(step, before, &error), qPrintable(error));
        QCOMPARE(readBytes(path), before ? first : second);
        QCOMPARE(book.plan().categories.keys(), before ? QList<int>{0} : (QList<int>{0, 1}));
    }
    QCOMPARE(recorded.size(), 2);

    // Undone after another computer wrote the file: refused, theirs kept.
    const QByteArray theirs = BudgetFile::encode(BudgetPlan{{{2, budget(7)}}, {}});
    writeBytes(path, theirs);
    QVERIFY(!ledger.restoreChange(step, true, &error));
    QVERIFY2(error.contains(BudgetFile::FileName), qPrintable(error));
    QCOMPARE(readBytes(path), theirs);
}

QTEST_GUILESS_MAIN(TestBudget)
#include "tst_budget.moc"
