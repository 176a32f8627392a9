#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "ledger/KController.h"
#include "model/MonthDataList.h"
#include "model/NumberValue.h"
#include "script/ScriptCommands.h"
#include "script/SearchResults.h"
#include "search/LedgerSearch.h"

#include <QDate>
#include <QFileInfo>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
// Entries of several months, booked out of order; words find them by their
// details as the list window's search field does.
void bookSearchedEntries(KController &controller)
{
    controller.addData({std::make_shared<PaymentData>(2025, 3, 2, 0, u"Bakery rolls"_s, 300.5f, 0),
                        std::make_shared<PaymentData>(2006, 5, 1, 0, u"Bakery"_s, 80, 0),
                        std::make_shared<PaymentData>(2024, 12, 31, 1, u"Train"_s, 2000, 1),
                        std::make_shared<PaymentData>(2025, 3, 14, 0, u"Bakery"_s, 1550, 0),
                        std::make_shared<PaymentData>(2025, 1, 5, 0, u"bakery"_s, 100, 0)});
}
} // namespace

class TestScriptCommands : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home.freshDataFolder();
        m_controller = std::make_unique<KController>();
        m_controller->readListPreference();
    }

    void newRecordIsBookedAtOnce()
    {
        const QDate today = QDate::currentDate();
        const auto record = ScriptCommands::makeNewPaymentData(
            *m_controller, {{u"amount"_s, 500}, {u"category"_s, 2}});
        QCOMPARE(record->category(), 2);
        QCOMPARE(record->amount(), 500.f);
        QCOMPARE(QDate(record->year(), record->month(), record->date()), today);
        QVERIFY(QFileInfo::exists(m_controller->filePathForYear(today.year(), today.month())));

        // The day is set after year and month, so 31 in a 30-day month wraps
        // to 1. (Months out of bounds are the bus test's.)
        const auto april = ScriptCommands::makeNewPaymentData(
            *m_controller, {{u"date"_s, 31}, {u"month"_s, 4}, {u"year"_s, 2007}});
        QCOMPARE(QDate(april->year(), april->month(), april->date()), QDate(2007, 4, 1));

        // Later edits of the record reach its month.
        const auto month = m_controller->monthListForYear(2007, 4);
        QVERIFY(!month->isEdited());
        april->setAmount(42);
        QVERIFY(month->isEdited());
    }

    // Lists by ID, name and index are the bus test's; the index ends with
    // December.
    void listsByIndexEndWithDecember()
    {
        QCOMPARE(ScriptCommands::valueAtIndex(*m_controller, 11)->month(), 12);
        QVERIFY(!ScriptCommands::valueAtIndex(*m_controller, 12));
    }

    void dataListsLoadsTheWholeFolder()
    {
        for (int month : {7, 2})
            ScriptCommands::makeNewPaymentData(*m_controller, {{u"year"_s, 2005}, {u"month"_s, month}});
        ScriptCommands::makeNewPaymentData(*m_controller, {{u"year"_s, 2004}, {u"month"_s, 11}});

        KController fresh;
        fresh.listForYear(2010, 1);
        QList<int> ids;
        for (const auto &list : ScriptCommands::dataLists(fresh))
            ids.append(ScriptCommands::uniqueID(*list));
        QCOMPARE(ids, (QList<int>{200411, 200502, 200507, 201001}));
    }

    void sortingByScript()
    {
        const auto may = m_controller->monthListForYear(2006, 5);
        for (float amount : {300.f, 100.f, 200.f}) {
            auto record = std::make_shared<PaymentData>(2006, 5, 1, 0, QString::number(amount), amount, 0);
            may->addData({record});
        }
        const auto amounts = [&] {
            QStringList texts = detailsOf(may->extractedArray());
            return texts.join(u' ');
        };
        ScriptCommands::sortWithASCommand(*may, {{u"sortKey"_s, u"Amount"_s}, {u"descend"_s, true}});
        QCOMPARE(amounts(), u"300 200 100"_s);
        // Both flags: ascending wins.
        ScriptCommands::sortWithASCommand(
            *may, {{u"sortKey"_s, u"Amount"_s}, {u"descend"_s, true}, {u"ascend"_s, true}});
        QCOMPARE(amounts(), u"100 200 300"_s);
        // Neither: the current order turns round.
        ScriptCommands::sortWithASCommand(*may, {{u"sortKey"_s, u"Amount"_s}});
        QCOMPARE(amounts(), u"300 200 100"_s);
        // No key: nothing happens.
        ScriptCommands::sortWithASCommand(*may, {{u"ascend"_s, true}});
        QCOMPARE(amounts(), u"300 200 100"_s);
    }

    void extractionKeysFromScript_data()
    {
        QTest::addColumn<QVariantMap>("arguments");
        QTest::addColumn<QList<int>>("categories");
        QTest::addColumn<QList<int>>("days");

        const QList<int> none{-1};
        QTest::newRow("one number") << QVariantMap{{u"Category"_s, 3}} << QList<int>{3} << none;
        QTest::newRow("text of two numbers")
            << QVariantMap{{u"Category"_s, u"2 5"_s}} << QList<int>{2, 5} << none;
        QTest::newRow("text with a comma")
            << QVariantMap{{u"Category"_s, u"2,11"_s}} << QList<int>{2, 11} << none;
        QTest::newRow("a list") << QVariantMap{{u"Category"_s, QVariantList{1, u"4"_s}}}
                                << QList<int>{1, 4} << none;
        QTest::newRow("days") << QVariantMap{{u"Date"_s, u"1,5,10-12"_s}} << none
                              << QList<int>{1, 5, 10, 11, 12};
    }

    void extractionKeysFromScript()
    {
        QFETCH(QVariantMap, arguments);
        QFETCH(QList<int>, categories);
        QFETCH(QList<int>, days);

        const ExtractKeyDict keys = ScriptCommands::extractKeyDictFromScript(arguments, 14);
        // Income is the last category, always.
        QCOMPARE(keys.incomeNumber, std::optional<int>(13));
        QCOMPARE(keys.category.value_or(QList<int>{-1}), categories);
        QCOMPARE(keys.date.value_or(QList<int>{-1}), days);
        QVERIFY(!keys.payway && !keys.details && !keys.amountMax && !keys.amountMin);
    }

    void extractionByScriptSelectsRecords()
    {
        const auto may = m_controller->monthListForYear(2006, 5);
        const int income = m_controller->categoryList().size() - 1;
        may->addData({std::make_shared<PaymentData>(2006, 5, 1, 2, u"Bread"_s, 3.5f, 0),
                      std::make_shared<PaymentData>(2006, 5, 10, 5, u"Bus pass"_s, 60, 1),
                      std::make_shared<PaymentData>(2006, 5, 11, 2, u"Cheese and bread"_s, 12, 0),
                      std::make_shared<PaymentData>(2006, 5, 25, income, u"Salary"_s, 3000, 1)});

        ScriptCommands::extractWithASCommand(*may, {{u"Category"_s, u"2 5"_s}, {u"Date"_s, u"5-12"_s}},
                                             m_controller->categoryList().size());
        QCOMPARE(detailsOf(may->extractedArray()), (QStringList{u"Bus pass"_s, u"Cheese and bread"_s}));
        QCOMPARE(may->extractedTotal(), 72.f);

        ScriptCommands::extractWithASCommand(
            *may, {{u"Details"_s, u"bread Salary"_s}, {u"AmountMin"_s, 10}},
            m_controller->categoryList().size());
        QCOMPARE(detailsOf(may->extractedArray()), (QStringList{u"Cheese and bread"_s, u"Salary"_s}));
        QCOMPARE(may->extractedIncomeTotal(), 3000.f);
        QCOMPARE(may->extractedTotal(), 12.f);

        ScriptCommands::cancelExtractWithASCommand(*may);
        QCOMPARE(may->extractedArray().size(), 4);
    }

    void desktopSearchAcrossMonths_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("newest first, literal case")
            << u"Bakery"_s << QStringList{u"2025/3/14 Bakery"_s, u"2025/3/2 Bakery rolls"_s, u"2006/5/1 Bakery"_s};
        QTest::newRow("any of the words") << u"rolls Train"_s
                                          << QStringList{u"2025/3/2 Bakery rolls"_s, u"2024/12/31 Train"_s};
        QTest::newRow("commas split too") << u"Train,bakery"_s
                                          << QStringList{u"2025/1/5 bakery"_s, u"2024/12/31 Train"_s};
        QTest::newRow("nothing asked") << u" "_s << QStringList();
        QTest::newRow("nothing found") << u"Taxi"_s << QStringList();
    }

    void desktopSearchAcrossMonths()
    {
        QFETCH(QString, words);
        QFETCH(QStringList, found);
        bookSearchedEntries(*m_controller);
        // A fresh controller, as after a start: the search reads every month.
        KController fresh;
        fresh.readListPreference();
        QStringList shown;
        for (const QString &id : SearchResults::resultIDs(fresh, words)) {
            const auto record = SearchResults::entryForResultID(fresh, id);
            shown.append(QStringLiteral("%1/%2/%3 %4").arg(record->year()).arg(record->month())
                             .arg(record->date()).arg(record->details()));
        }
        QCOMPARE(shown, found);
    }

    void desktopResultsNameTheirEntry()
    {
        bookSearchedEntries(*m_controller);
        const QString id = SearchResults::resultIDs(*m_controller, u"Bakery"_s).constFirst();
        const auto record = SearchResults::entryForResultID(*m_controller, id);
        QCOMPARE(LedgerSearch::entryText(*record),
                 u"2025/3/14 "_s + record->categoryAsName() + u" Bakery "_s + amountText(1550));

        // An entry booked before it in its month moves it down; the ID still
        // finds it. Changed, it is no longer the entry that was found.
        m_controller->addData({std::make_shared<PaymentData>(2025, 3, 1, 0, u"Milk"_s, 200, 0)});
        QCOMPARE(SearchResults::entryForResultID(*m_controller, id), record);
        record->setAmount(1600);
        QVERIFY(!SearchResults::entryForResultID(*m_controller, id));
        for (const QString &bad : {u""_s, u"202503:0"_s, u"202513:0:0"_s, u"202500:0:0"_s, u"x:y:z"_s})
            QVERIFY(!SearchResults::entryForResultID(*m_controller, bad));

        // No more than a desktop shows, the newest of them.
        PaymentArray many;
        for (int day = 1; day <= 25; ++day)
            many.append(std::make_shared<PaymentData>(2030, 1, day, 0, u"Lunch"_s, 500, 0));
        m_controller->addData(many);
        const QStringList lunches = SearchResults::resultIDs(*m_controller, u"Lunch"_s);
        QCOMPARE(lunches.size(), LedgerSearch::MaxResults);
        QCOMPARE(SearchResults::entryForResultID(*m_controller, lunches.constLast())->date(), 6);
    }

private:
    TestDataFolder m_home;
    std::unique_ptr<KController> m_controller;
};

QTEST_GUILESS_MAIN(TestScriptCommands)
#include "tst_scriptcommands.moc"
