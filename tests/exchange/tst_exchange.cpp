#include "LedgerGenerator.h"
#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "exchange/CsvExport.h"
#include "exchange/CsvImporter.h"
#include "exchange/ImportMapping.h"
#include "ledger/KController.h"
#include "model/DataList.h"
#include "model/MonthDataList.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList categories{u"Food"_s, u"Home"_s, u"Travel"_s, u"Income"_s};
const QStringList payways{u"Cash"_s, u"Card"_s};

CandidateEntry candidate(const QString &category, double amount, const QString &payway = {},
                         bool incomeCategory = false)
{
    CandidateEntry entry;
    entry.date = QDate(2024, 1, 2);
    entry.amount = amount;
    entry.category = category;
    entry.payway = payway;
    entry.incomeCategory = incomeCategory;
    return entry;
}

// Fields of records, one line each, so that lists of them compare plainly.
QStringList fieldsOf(const PaymentArray &records)
{
    QStringList lines;
    for (const PaymentDataPtr &r : records)
        lines.append(u"%1-%2-%3 %4 %5 %6 %7"_s.arg(r->year()).arg(r->month()).arg(r->date())
                         .arg(r->category()).arg(r->details()).arg(double(r->amount()), 0, 'g', 9)
                         .arg(r->payway()));
    return lines;
}

} // namespace

class TestExchange : public QObject
{
    Q_OBJECT

private slots:
    void mapping_data()
    {
        QTest::addColumn<CandidateEntry>("entry");
        QTest::addColumn<bool>("signedAmounts");
        // Empty: the unmatched go to the first category; else a new one of this name.
        QTest::addColumn<QString>("newCategory");
        QTest::addColumn<int>("category");
        QTest::addColumn<int>("payway");
        QTest::addColumn<float>("amount");
        QTest::addColumn<int>("categoryCount");

        const auto row = [](const char *name, const CandidateEntry &entry, bool signedAmounts,
                            const QString &newCategory, int category, int payway, float amount) {
            QTest::newRow(name) << entry << signedAmounts << newCategory << category << payway << amount
                                << (newCategory.isEmpty() ? 4 : 5);
        };
        row("by name, case and width aside", candidate(u"ｔｒａｖｅｌ"_s, -5, u"CARD"_s), true, {}, 2, 1, 5);
        row("child name, then parent", candidate(u"Leisure:Travel"_s, -5), true, {}, 2, 0, 5);
        row("parent when the child is unknown", candidate(u"Home:Repairs"_s, -5), true, {}, 1, 0, 5);
        row("positive signed amount is income", candidate(u"Food"_s, 7.25), true, {}, 3, 0, 7.25f);
        row("unsigned amount keeps its category", candidate(u"Food"_s, 7.25), false, {}, 0, 0, 7.25f);
        row("income category of the source", candidate(u"Wage"_s, -1, {}, true), true, {}, 3, 0, 1);
        row("unmatched to the chosen category", candidate(u"Pets"_s, -2, u"Cheque"_s), true, {}, 0, 0, 2);
        row("unmatched to a new category before income", candidate(u"Pets"_s, -2), true, u"Imported"_s, 3,
            0, 2);
        row("income moves past the new category", candidate(u"Pets"_s, 2), true, u"Imported"_s, 4, 0, 2);
        row("a choice for a source name wins", candidate(u"Groceries"_s, -1), true, {}, 2, 0, 1);
    }

    void mapping()
    {
        QFETCH(CandidateEntry, entry);
        QFETCH(bool, signedAmounts);
        QFETCH(QString, newCategory);
        QFETCH(int, category);
        QFETCH(int, payway);
        QFETCH(float, amount);
        QFETCH(int, categoryCount);

        ImportMapping mapping(categories, payways);
        mapping.setCategoryFor(u"groceries"_s, 2);
        if (!newCategory.isEmpty())
            mapping.setNewCategory(newCategory);
        ImportResult imported;
        imported.amountsSigned = signedAmounts;
        // A second, unmatched entry so that a new category is always in use.
        imported.entries = {entry, candidate(u"Unknown"_s, -1)};
        const ImportMapping::Result result = mapping.map(imported);
        QCOMPARE(result.entries.constFirst().category, category);
        QCOMPARE(result.entries.constFirst().payway, payway);
        QCOMPARE(result.entries.constFirst().amount, amount);
        QCOMPARE(result.categories.size(), categoryCount);
        QCOMPARE(result.categories.constLast(), u"Income"_s);
    }

    void duplicatesAreFlaggedOncePerBookedEntry()
    {
        ImportResult imported;
        for (const auto &[day, details, amount] : {std::tuple{3, u"Coffee"_s, -4.5}, std::tuple{3, u"Coffee"_s, -4.5},
                                                   std::tuple{3, u"Coffee"_s, -5.0}, std::tuple{4, u"Coffee"_s, -4.5},
                                                   std::tuple{1, u"Rent"_s, -900.0}}) {
            CandidateEntry entry = candidate({}, amount);
            entry.date = QDate(2024, day == 1 ? 2 : 1, day);
            entry.details = details;
            imported.entries.append(entry);
        }
        ImportMapping::Result result = ImportMapping(categories, payways).map(imported);
        QList<QPair<int, int>> asked;
        ImportMapping::flagDuplicates(result.entries, [&](int year, int month) {
            asked.append({year, month});
            return month == 1 ? PaymentArray{entry(2024, 1, 3, u"Coffee"_s, 4.5f)} : PaymentArray{};
        });
        QList<bool> flags;
        for (const MappedEntry &e : result.entries)
            flags.append(e.duplicate);
        QCOMPARE(flags, (QList<bool>{true, false, false, false, false}));
        QCOMPARE(asked, (QList<QPair<int, int>>{{2024, 1}, {2024, 2}})); // each month asked once
    }

    void exportText_data()
    {
        QTest::addColumn<QString>("details");
        QTest::addColumn<float>("amount");
        QTest::addColumn<QByteArray>("line");

        QTest::newRow("plain") << u"Bread"_s << 120.f << "2024-01-02,Food,Bread,120,Card\r\n"_ba;
        QTest::newRow("comma and quote quoted")
            << u"A, \"B\""_s << 0.1f << "2024-01-02,Food,\"A, \"\"B\"\"\",0.1,Card\r\n"_ba;
        QTest::newRow("line break and edge blanks quoted")
            << u" x\ny"_s << 1e6f << "2024-01-02,Food,\" x\ny\",1000000,Card\r\n"_ba;
        QTest::newRow("fewest digits of a float") << u"日本"_s << 1234.56f << "2024-01-02,Food,日本,1234.56,Card\r\n"_ba;
    }

    void exportText()
    {
        QFETCH(QString, details);
        QFETCH(float, amount);
        QFETCH(QByteArray, line);
        const QByteArray text = CsvExport::text({entry(2024, 1, 2, details, amount, 0, 1)}, categories, payways);
        QCOMPARE(text, "Date,Category,Details,Amount,Payway\r\n"_ba + line);
    }

    void exportThenImportGivesTheSameYear()
    {
        LedgerGenerator generator(15);
        PaymentArray year;
        for (int month = 1; month <= 12; ++month)
            year += generator.monthRecords(2023, month, 40);
        // The odd corners of details as well as the generator's.
        year += entry(2023, 12, 31, u" \"quoted\", with\r\nbreaks "_s, 0.3f, 4, 2);
        const QStringList ourCategories = LedgerGenerator::categoryNames();
        const QStringList ourPayways = LedgerGenerator::paywayNames();
        const QByteArray text = CsvExport::text(year, ourCategories, ourPayways);

        const ImportResult imported = CsvImporter().parse(text);
        QVERIFY(imported.problems.isEmpty());
        const ImportMapping::Result mapped = ImportMapping(ourCategories, ourPayways).map(imported);
        QCOMPARE(mapped.categories, ourCategories);
        PaymentArray back;
        for (const MappedEntry &e : mapped.entries) {
            back.append(entry(e.source.date.year(), e.source.date.month(), e.source.date.day(), e.source.details,
                              e.amount, e.category, e.payway));
        }
        QCOMPARE(fieldsOf(back), fieldsOf(year));
        QCOMPARE(CsvExport::text(back, ourCategories, ourPayways), text);
    }

    void ledgerScopes_data()
    {
        QTest::addColumn<QString>("scope");
        QTest::addColumn<QStringList>("details");

        QTest::newRow("a month") << u"202401"_s << QStringList{u"b"_s, u"unsaved"_s, u"a"_s};
        QTest::newRow("a year") << u"2024"_s << QStringList{u"b"_s, u"unsaved"_s, u"a"_s, u"c"_s};
        QTest::newRow("everything") << u"all"_s << QStringList{u"z"_s, u"b"_s, u"unsaved"_s, u"a"_s, u"c"_s};
        QTest::newRow("no such scope") << u"20241"_s << QStringList{u"refused"_s};
        // An export with a hole in it would pass for the whole.
        QTest::newRow("a month that cannot be read") << u"all broken"_s << QStringList{u"refused"_s};
    }

    void ledgerScopes()
    {
        QFETCH(QString, scope);
        QFETCH(QStringList, details);
        const QString folder = m_home.freshDataFolder();
        writeMonthFile(folder, 2023, 12, {entry(2023, 12, 30, u"z"_s)});
        writeMonthFile(folder, 2024, 1, {entry(2024, 1, 20, u"a"_s), entry(2024, 1, 5, u"b"_s)});
        writeMonthFile(folder, 2024, 3, {entry(2024, 3, 1, u"c"_s)});
        if (scope.endsWith(u" broken"_s)) {
            writeBytes(DataFolder::filePathForYear(folder, 2024, 2), "not a month");
            scope.chop(7);
        }
        KController ledger;
        // An edit not yet written is part of what the program holds.
        ledger.monthListForYear(2024, 1)->addData({entry(2024, 1, 5, u"unsaved"_s)});

        const auto named = CsvExport::scopeNamed(scope);
        if (!named) {
            QCOMPARE(details, QStringList{u"refused"_s});
            return;
        }
        QString error;
        const auto records = CsvExport::records(ledger, *named, &error);
        if (details == QStringList{u"refused"_s}) {
            QVERIFY(!records);
            QVERIFY2(error.startsWith(u"2024/2 cannot be read"_s), qPrintable(error));
            return;
        }
        QVERIFY2(records, qPrintable(error));
        QCOMPARE(detailsOf(*records), details);
    }

private:
    TestDataFolder m_home;
};

QTEST_GUILESS_MAIN(TestExchange)
#include "tst_exchange.moc"
