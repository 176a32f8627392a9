#include "search/StringUtility.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace {

// The separators a Japanese user types: a wide space, the ideographic full
// stop, a wide minus and a wave dash.
class JapaneseSeparators : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (qstrcmp(context, "StringUtility") != 0)
            return {};
        const QLatin1StringView key(sourceText);
        if (key == "Space Character"_L1)
            return u"\u3000"_s;
        if (key == "Kuten Character"_L1)
            return u"\u3002"_s;
        if (key == "Minus Character"_L1)
            return u"\uFF0D"_s;
        if (key == "Tilde Character"_L1)
            return u"\u301C"_s;
        return {};
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestStringUtility : public QObject
{
    Q_OBJECT

private slots:
    void dateKeys_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QList<int>>("days");

        QTest::newRow("empty") << QString() << QList<int>{};
        QTest::newRow("list and range") << u"1,5,10-12"_s << QList<int>{1, 5, 10, 11, 12};
        QTest::newRow("blanks separate") << u"1 5"_s << QList<int>{1, 5};
        QTest::newRow("range stops after 31") << u"25-40"_s << QList<int>{25, 26, 27, 28, 29, 30, 31};
        QTest::newRow("31 to 35 is 31 alone") << u"31-35"_s << QList<int>{31};
        QTest::newRow("open end is the start alone") << u"20-"_s << QList<int>{20};
        QTest::newRow("open start counts from 0") << u"-3"_s << QList<int>{0, 1, 2, 3};
        QTest::newRow("backward range is nothing") << u"12-10"_s << QList<int>{};
        QTest::newRow("middle bounds are ignored") << u"1-3-5"_s << QList<int>{1, 2, 3, 4, 5};
        QTest::newRow("empty piece is 0") << u"3,,4"_s << QList<int>{3, 0, 4};
        QTest::newRow("no bound on single days") << u"45"_s << QList<int>{45};
        QTest::newRow("leading number of a word") << u"7th,x"_s << QList<int>{7, 0};
        QTest::newRow("order and duplicates kept") << u"9,2,9"_s << QList<int>{9, 2, 9};
        QTest::newRow("lone hyphen") << u"-"_s << QList<int>{0};
        QTest::newRow("huge start") << u"99999999999-3"_s << QList<int>{};
    }

    void dateKeys()
    {
        QFETCH(QString, typed);
        QFETCH(QList<int>, days);
        QCOMPARE(separateDateKeyToArray(typed), days);
    }

    void keywordKeys_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("keywords");

        QTest::newRow("empty") << QString() << QStringList{};
        QTest::newRow("one word") << u"Bakery"_s << QStringList{u"Bakery"_s};
        QTest::newRow("blank and comma") << u"tea coffee,milk"_s
                                         << QStringList{u"tea"_s, u"coffee"_s, u"milk"_s};
        QTest::newRow("single blank is two empty keywords") << u" "_s << QStringList{u""_s, u""_s};
        QTest::newRow("hyphen is part of a word") << u"e-mail"_s << QStringList{u"e-mail"_s};
    }

    void keywordKeys()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, keywords);
        QCOMPARE(separateStringKeyToArray(typed), keywords);
    }

    void localizedSeparators()
    {
        // Without a translation the keys stand for themselves and change nothing.
        QCOMPARE(separateDateKeyToArray(u"10\u301C12"_s), QList<int>{10});

        JapaneseSeparators japanese;
        QVERIFY(QCoreApplication::installTranslator(&japanese));
        QCOMPARE(separateDateKeyToArray(u"1\u30003\u30025"_s), (QList<int>{1, 3, 5}));
        QCOMPARE(separateDateKeyToArray(u"10\u301C12"_s), (QList<int>{10, 11, 12}));
        QCOMPARE(separateDateKeyToArray(u"28\uFF0D31"_s), (QList<int>{28, 29, 30, 31}));
        QCOMPARE(separateStringKeyToArray(u"\u30E9\u30F3\u30C1\u3000\u30D1\u30F3"_s),
                 (QStringList{u"\u30E9\u30F3\u30C1"_s, u"\u30D1\u30F3"_s}));
        // Keywords keep their minus and wave dash.
        QCOMPARE(separateStringKeyToArray(u"A\u301CB"_s), QStringList{u"A\u301CB"_s});
        QCoreApplication::removeTranslator(&japanese);
    }

    void replacingIgnoresAnEmptyPattern()
    {
        QCOMPARE(replaceStringFrom(u"a b c"_s, u" ", u","), u"a,b,c"_s);
        QCOMPARE(replaceStringFrom(u"abc"_s, u"", u","), u"abc"_s);
        QCOMPARE(replaceStringFrom(u"aaa"_s, u"aa", u"b"), u"ba"_s);
    }
};

QTEST_GUILESS_MAIN(TestStringUtility)
#include "tst_stringutility.moc"
