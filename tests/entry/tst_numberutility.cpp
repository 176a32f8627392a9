#include "entry/NumberUtility.h"

#include <QTest>
#include <QTranslator>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

// Gives the multiplication sign of a language to NumberUtility's lookup.
class MultiplicationSign : public QTranslator
{
public:
    explicit MultiplicationSign(QString sign)
        : m_sign(std::move(sign))
    {
    }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *,
                      int) const override
    {
        if (qstrcmp(context, "NumberUtility") == 0 && qstrcmp(sourceText, "Multiple Character") == 0)
            return m_sign;
        return {};
    }

private:
    QString m_sign;
};

} // namespace

class TestNumberUtility : public QObject
{
    Q_OBJECT

private slots:
    void statements_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::addColumn<double>("expected");

        QTest::newRow("grouping and equals removed") << u"1,000+500="_s << 1500.0;
        QTest::newRow("multiplication binds tighter") << u"2+3*4"_s << 14.0;
        QTest::newRow("subtraction left to right") << u"10-2-3"_s << 5.0;
        QTest::newRow("division left to right") << u"8/2/2"_s << 2.0;
        QTest::newRow("leading operator starts from 0") << u"-5+3"_s << -2.0;
        QTest::newRow("trailing operator ignored") << u"5+"_s << 5.0;
        QTest::newRow("bracket first") << u"(1+2)*3"_s << 9.0;
        QTest::newRow("bracket cut to six decimals") << u"(1/3)*3"_s << 0.999999;
        QTest::newRow("no bracket, no cut") << u"1/3*3"_s << 1.0;
        QTest::newRow("operator run acts as plus") << u"10*(2-5)"_s << 13.0;
        QTest::newRow("square brackets around round ones") << u"[2+(3*4)]"_s << 14.0;
        QTest::newRow("unbalanced") << u"(1+2"_s << 0.0;
        QTest::newRow("closing before opening") << u")1+2("_s << 0.0;
        QTest::newRow("mismatched kinds") << u"(1+2]"_s << 0.0;
        QTest::newRow("text") << u"abc"_s << 0.0;

        QTest::newRow("empty") << QString() << 0.0;
        QTest::newRow("spaces only") << u"   "_s << 0.0;
        QTest::newRow("space as grouping") << u"1 000"_s << 1000.0;
        QTest::newRow("same bracket twice") << u"(1+1)*(1+1)"_s << 4.0;
        QTest::newRow("nested brackets of one kind") << u"((1+2)*2)"_s << 6.0;
        QTest::newRow("negative operand keeps its sign") << u"2*-3"_s << 5.0;
        QTest::newRow("curly brackets") << u"{1+1}*{2+3}"_s << 10.0;
        QTest::newRow("decimal point is always a dot") << u"1.5*2"_s << 3.0;
        QTest::newRow("full-width digits read as 0") << u"１２+1"_s << 1.0;
        QTest::newRow("trailing garbage ignored") << u"12yen+3"_s << 15.0;
        QTest::newRow("unbalanced bracket zeroes everything") << u"100+(2"_s << 0.0;
        QTest::newRow("division by zero is infinite") << u"1/0"_s << qInf();
    }

    void statements()
    {
        QFETCH(QString, statement);
        QFETCH(double, expected);
        const double value = NumberUtility::numberWithCalcurationStatement(statement);
        QVERIFY2(value == expected || std::abs(value - expected) < 1e-9,
                 qPrintable(u"%1 gave %2"_s.arg(statement).arg(value, 0, 'g', 17)));
    }

    void localisedMultiplicationSign()
    {
        // Without a translation the key itself is the sign, which no amount holds.
        QCOMPARE(NumberUtility::numberWithCalcurationStatement(u"3×4"_s), 3.0);

        MultiplicationSign japanese(u"×"_s);
        QCoreApplication::installTranslator(&japanese);
        QCOMPARE(NumberUtility::multipleCharacter(), u"×"_s);
        QCOMPARE(NumberUtility::numberWithCalcurationStatement(u"3×4"_s), 12.0);
        QCOMPARE(NumberUtility::numberWithCalcurationStatement(u"1+(2×3)"_s), 7.0);
        QCoreApplication::removeTranslator(&japanese);
    }
};

QTEST_GUILESS_MAIN(TestNumberUtility)
#include "tst_numberutility.moc"
