#include "TestDataFolder.h"

#include "exchange/CsvImporter.h"
#include "exchange/HomeBankImporter.h"
#include "exchange/OfxImporter.h"
#include "exchange/QifImporter.h"

#include <QStringEncoder>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

enum class Format { Qif, HomeBank, Ofx };
Q_DECLARE_METATYPE(Format)

namespace {

// One entry as one line, so that a case lists what it expects plainly.
QString summary(const CandidateEntry &e)
{
    return u"%1 %2 %3 [%4|%5]%6 @%7"_s.arg(e.date.toString(Qt::ISODate))
        .arg(e.amount, 0, 'g', 12)
        .arg(e.details, e.category, e.payway, e.incomeCategory ? u" income"_s : QString())
        .arg(e.line);
}

QStringList summaries(const ImportResult &result)
{
    QStringList lines;
    for (const CandidateEntry &e : result.entries)
        lines.append(summary(e));
    return lines;
}

QStringList problems(const ImportResult &result)
{
    QStringList lines;
    for (const RowProblem &p : result.problems)
        lines.append(u"%1: %2"_s.arg(p.line).arg(p.reason));
    return lines;
}

QByteArray encoded(const char *encoding, const QString &text)
{
    QStringEncoder encoder(encoding, QStringEncoder::Flag::WriteBom);
    return encoder.encode(text);
}

} // namespace

class TestImporters : public QObject
{
    Q_OBJECT

private slots:
    void csv_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QStringList>("problems");
        // How many date orders fit: more than one asks the person.
        QTest::addColumn<int>("orders");

        QTest::newRow("ISO dates, signed amounts")
            << "Date,Amount,Description\n2024-01-15,-12.50,Coffee\n2024-01-25,2500,Salary\n"_ba
            << QStringList{u"2024-01-15 -12.5 Coffee [|] @2"_s, u"2024-01-25 2500 Salary [|] @3"_s}
            << QStringList() << 1;
        QTest::newRow("semicolons, decimal comma, thousands points")
            << "Datum;Betrag;Verwendungszweck\r\n15.01.2024;-1.234,56;Miete\r\n16.01.2024;7,5;Zins\r\n"_ba
            << QStringList{u"2024-01-15 -1234.56 Miete [|] @2"_s, u"2024-01-16 7.5 Zins [|] @3"_s}
            << QStringList() << 1;
        QTest::newRow("CP932, debit and credit columns, half-width kana")
            << encoded("CP932", u"日付,摘要,お引出し,お預入れ\n2024/01/15,ｺﾝﾋﾞﾆ,\"1,200\",\n"
                                "2024/01/25,給与,,\"250,000\"\n"_s)
            << QStringList{u"2024-01-15 -1200 ｺﾝﾋﾞﾆ [|] @2"_s, u"2024-01-25 250000 給与 [|] @3"_s}
            << QStringList() << 1;
        QTest::newRow("UTF-8 with BOM, tabs, category and payway")
            << "\xEF\xBB\xBF" "date\tamount\tmemo\tcategory\tpayment method\n2024-03-01\t-3\tBus\tTravel\tCash\n"_ba
            << QStringList{u"2024-03-01 -3 Bus [Travel|Cash] @2"_s} << QStringList() << 1;
        QTest::newRow("UTF-16 with BOM")
            << encoded("UTF-16LE", u"Date,Amount,Details\n2024-02-29,-1,Bread\n"_s)
            << QStringList{u"2024-02-29 -1 Bread [|] @2"_s} << QStringList() << 1;
        QTest::newRow("quoted line breaks and quotes keep line numbers")
            << "Date,Amount,Details\n2024-01-02,-4,\"two\nlines, \"\"quoted\"\"\"\n2024-01-03,-5,after\n"_ba
            << QStringList{u"2024-01-02 -4 two\nlines, \"quoted\" [|] @2"_s, u"2024-01-03 -5 after [|] @4"_s}
            << QStringList() << 1;
        QTest::newRow("day and month both possible")
            << "Date,Amount,Details\n01/02/2024,-1,a\n03/04/2024,-2,b\n"_ba
            << QStringList{u"2024-02-01 -1 a [|] @2"_s, u"2024-04-03 -2 b [|] @3"_s} << QStringList() << 2;
        QTest::newRow("month first shown by a day above 12")
            << "Date,Amount,Details\n01/02/2024,-1,a\n12/31/24,(2.00),b\n"_ba
            << QStringList{u"2024-01-02 -1 a [|] @2"_s, u"2024-12-31 -2 b [|] @3"_s} << QStringList() << 1;
        QTest::newRow("missing and bad fields, blank line skipped")
            << "Date,Amount,Details\n,-1,no date\n2024-13-01,-1,bad date\n\n2024-01-05,,no amount\n"
               "2024-01-06,abc,bad amount\n2024-01-07\n2024-01-08,-9,good\n"_ba
            << QStringList{u"2024-01-08 -9 good [|] @8"_s}
            << QStringList{u"2: The date is missing."_s, u"3: '2024-13-01' is not a date."_s,
                           u"5: The amount is missing."_s, u"6: 'abc' is not an amount."_s,
                           u"7: The amount is missing."_s}
            << 1;
        QTest::newRow("no header: columns from content")
            << "2024-05-01,Lunch,\"-1,100\"\n2024-05-02,Dinner,-2300\n"_ba
            << QStringList{u"2024-05-01 -1100 Lunch [|] @1"_s, u"2024-05-02 -2300 Dinner [|] @2"_s}
            << QStringList() << 1;
        QTest::newRow("our own export: unsigned, details exact")
            << "Date,Category,Details,Amount,Payway\r\n2024-01-02,Food,\" padded \",0.1,Cash\r\n"_ba
            << QStringList{u"2024-01-02 0.1  padded  [Food|Cash] @2"_s} << QStringList() << 1;
    }

    void csv()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, entries);
        QFETCH(QStringList, problems);
        QFETCH(int, orders);
        const ImportResult result = CsvImporter().parse(bytes);
        QVERIFY2(!result.failed(), qPrintable(result.error));
        QCOMPARE(summaries(result), entries);
        QCOMPARE(::problems(result), problems);
        QCOMPARE(result.dateOrders.size(), orders);
    }

    void csvMappingIsRemembered()
    {
        const QByteArray bytes = "When;What;How much\n2024-01-02;Tea;-3\n"_ba;
        CsvImporter::Reading first = CsvImporter().readCsv(bytes);
        QVERIFY(first.result.failed()); // nothing in the header says which column is which
        CsvMapping chosen = first.mapping;
        using Role = CsvMapping::Role;
        chosen.roles = {Role::Date, Role::Details, Role::Amount};
        chosen.remember(first.header);

        const CsvImporter::Reading again = CsvImporter().readCsv(bytes);
        QCOMPARE(summaries(again.result), QStringList{u"2024-01-02 -3 Tea [|] @2"_s});
        QCOMPARE(again.mapping.roles, chosen.roles);
    }

    void otherFormats_data()
    {
        QTest::addColumn<Format>("format");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QStringList>("problems");
        QTest::addColumn<bool>("fails");

        QTest::newRow("bank: apostrophe year, cheque number, transfer") << Format::Qif
            << "!Type:Bank\nD1/15'04\nT-1,234.50\nPLandlord\nMJanuary\nLHousing:Rent\nN1001\n^\n"
               "D12/31/1999\nU250.00\nPEmployer\nLSalary\nNDeposit\n^\nD1/ 2' 5\nT-20\nL[Savings]\n^\n"_ba
            << QStringList{u"2004-01-15 -1234.5 Landlord / January [Housing:Rent|Cheque] @2"_s,
                           u"1999-12-31 250 Employer [Salary|Deposit] @9"_s,
                           u"2005-01-02 -20  [[Savings]|] @15"_s}
            << QStringList() << false;
        QTest::newRow("cash: day first, decimal comma, splits") << Format::Qif
            << "!Type:Cash\nD25.12.2023\nT-30,00\nPMarket\nSFood\nEFruit\n$-10,00\nSHome\n$-20,00\n^\n"_ba
            << QStringList{u"2023-12-25 -10 Market / Fruit [Food|] @2"_s,
                           u"2023-12-25 -20 Market [Home|] @2"_s}
            << QStringList() << false;
        QTest::newRow("income categories from the category list") << Format::Qif
            << "!Type:Cat\nNWages\nI\n^\nNFood\nE\n^\n!Type:Bank\nD2024-01-05\nT100\nLWages:Bonus\n^\n"_ba
            << QStringList{u"2024-01-05 100  [Wages:Bonus|] income @9"_s} << QStringList() << false;
        QTest::newRow("bad records listed, other sections passed over") << Format::Qif
            << "!Type:Invst\nD1/1/2024\nT5\n^\n!Type:Bank\nD1/2/2024\nPno amount\n^\nDyesterday\nT1\n^\n"
               "D1/3/2024\nT-2\n"_ba
            << QStringList{u"2024-01-03 -2  [|] @12"_s}
            << QStringList{u"6: The amount is missing."_s, u"9: 'yesterday' is not a date."_s} << false;

        const QByteArray lists = "<?xml version=\"1.0\"?>\n<homebank v=\"1.4\" d=\"050504\">\n"
                                 "<pay key=\"1\" name=\"Grocer\"/>\n"
                                 "<cat key=\"1\" name=\"Food\"/>\n<cat key=\"2\" parent=\"1\" name=\"Fruit\"/>\n"
                                 "<cat key=\"3\" flags=\"2\" name=\"Wage\"/>\n"_ba;
        QTest::newRow("categories, parents, income flag, memo and wording") << Format::HomeBank
            << lists + "<ope date=\"738900\" amount=\"-3.5\" paymode=\"3\" payee=\"1\" category=\"2\" "
                       "memo=\"apples\" info=\"r1\"/>\n"
                       "<ope date=\"738901\" amount=\"2000\" paymode=\"4\" category=\"3\" wording=\"May\"/>\n"
                       "</homebank>\n"
            << QStringList{u"2024-01-15 -3.5 Grocer / apples / r1 [Food:Fruit|Cash] @7"_s,
                           u"2024-01-16 2000 May [Wage|Transfer] income @8"_s}
            << QStringList() << false;
        QTest::newRow("splits become one entry each") << Format::HomeBank
            << lists + "<ope date=\"738900\" amount=\"-30\" paymode=\"1\" payee=\"1\" memo=\"week\" "
                       "scat=\"1||2\" samt=\"-10||-20\" smem=\"||pears\"/>\n</homebank>\n"
            << QStringList{u"2024-01-15 -10 Grocer / week [Food|Credit card] @7"_s,
                           u"2024-01-15 -20 Grocer / pears [Food:Fruit|Credit card] @7"_s}
            << QStringList() << false;
        QTest::newRow("missing date and amount") << Format::HomeBank
            << lists + "<ope amount=\"-1\"/>\n<ope date=\"738900\"/>\n</homebank>\n"
            << QStringList() << QStringList{u"7: The date is missing."_s, u"8: The amount is missing."_s}
            << false;
        for (const auto &[name, bytes] : {std::pair{"not HomeBank", "<html><body/></html>"_ba},
                                          std::pair{"damaged", lists + "<ope date=\"1\""}})
            QTest::newRow(name) << Format::HomeBank << bytes << QStringList() << QStringList() << true;
        // Its lists may come after the operations that use them.
        QTest::newRow("HomeBank lists after the operations") << Format::HomeBank
            << "<homebank v=\"1.4\">\n<ope date=\"738900\" amount=\"-2.5\" payee=\"1\" category=\"2\" memo=\"m\"/>\n"
               "<pay key=\"1\" name=\"Grocer\"/>\n<cat key=\"2\" parent=\"1\" name=\"Fruit\"/>\n"
               "<cat key=\"1\" flags=\"2\" name=\"Food\"/>\n</homebank>\n"_ba
            << QStringList{u"2024-01-15 -2.5 Grocer / m [Food:Fruit|] income @2"_s} << QStringList() << false;

        const QByteArray transactions =
            "<STMTTRN><TRNTYPE>POS<DTPOSTED>20240115120000<TRNAMT>-42.10<FITID>1<NAME>Bakery</STMTTRN>\n"
            "<STMTTRN><TRNTYPE>DIRECTDEP<DTPOSTED>20240125<TRNAMT>1500.00<FITID>2<NAME>Employer"
            "<MEMO>January</STMTTRN>\n"_ba;
        QTest::newRow("OFX 1, SGML") << Format::Ofx
            << "OFXHEADER:100\nDATA:OFXSGML\nVERSION:102\nSECURITY:NONE\nENCODING:USASCII\nCHARSET:1252\n"
               "COMPRESSION:NONE\nOLDFILEUID:NONE\nNEWFILEUID:NONE\n\n<OFX><BANKMSGSRSV1><STMTTRNRS>"
               "<TRNUID>1<STMTRS><CURDEF>EUR<BANKACCTFROM><BANKID>1<ACCTID>2<ACCTTYPE>CHECKING"
               "</BANKACCTFROM><BANKTRANLIST><DTSTART>20240101<DTEND>20240131\n"_ba
                   + transactions + "</BANKTRANLIST></STMTRS></STMTTRNRS></BANKMSGSRSV1></OFX>\n"
            << QStringList{u"2024-01-15 -42.1 Bakery [|Debit card] @12"_s,
                           u"2024-01-25 1500 Employer / January [|Deposit] @13"_s}
            << QStringList() << false;
        QTest::newRow("not OFX") << Format::Ofx << "Date,Amount\n"_ba << QStringList() << QStringList() << true;
    }

    void otherFormats()
    {
        QFETCH(Format, format);
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, entries);
        QFETCH(QStringList, problems);
        QFETCH(bool, fails);
        const ImportResult result = format == Format::Qif        ? QifImporter().parse(bytes)
                                    : format == Format::HomeBank ? HomeBankImporter().parse(bytes)
                                                                 : OfxImporter().parse(bytes);
        QVERIFY2(result.failed() == fails, qPrintable(result.error));
        QCOMPARE(summaries(result), entries);
        QCOMPARE(::problems(result), problems);
    }

private:
    TestDataFolder m_home;
};

QTEST_GUILESS_MAIN(TestImporters)
#include "tst_importers.moc"
