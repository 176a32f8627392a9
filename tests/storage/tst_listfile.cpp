#include "TestDataFolder.h"
#include "TestHelpers.h"

#include "model/CategoryPalette.h"
#include "storage/ColorArchive.h"
#include "storage/ListFile.h"
#include "storage/PropertyList.h"
#include "storage/TypedStreamWriter.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

RgbaColor colorAt(const QVariantList &colors, qsizetype i)
{
    const auto color = ColorArchive::decode(colors.at(i).toByteArray());
    return color.value_or(RgbaColor{-1, -1, -1, -1});
}

const RgbaColor kBlue{0, 0, 1, 1};
const RgbaColor kGray{0.5f, 0.5f, 0.5f, 1};

} // namespace

class TestListFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = m_home.freshDataFolder();
    }

    void firstReadWritesTheInitialLists_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("income");
        QTest::addColumn<QString>("cash");
        QTest::newRow("English") << QLocale(QLocale::English) << u"Income"_s << u"Cash"_s;
        // A new folder started in Japanese gets its lists in Japanese.
        QTest::newRow("Japanese") << QLocale(QLocale::Japanese) << u"収入"_s << u"現金"_s;
    }

    void firstReadWritesTheInitialLists()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, income);
        QFETCH(QString, cash);
        const QLocale before;
        QLocale::setDefault(locale);
        const auto restore = qScopeGuard([&before] { QLocale::setDefault(before); });
        const QString path = ListFile::dictionaryPathString(m_folder);
        QVERIFY(!QFile::exists(path));
        const QVariantList categories = ListFile::preferenceDataListForKey(m_folder, ListFile::CategoryList);
        QVERIFY(QFile::exists(path));
        QVERIFY(categories.size() >= 8);
        QCOMPARE(categories.constLast().toString(), income);
        for (const QVariant &name : categories)
            QVERIFY(!name.toString().isEmpty());

        const QVariantList colors = ListFile::preferenceDataListForKey(m_folder, ListFile::ColorList);
        QCOMPARE(colors.size(), categories.size());
        QCOMPARE(colorAt(colors, 0), CategoryPalette::colorAt(0));
        QCOMPARE(colorAt(colors, colors.size() - 1), kGray);

        const QVariantList payways = ListFile::preferenceDataListForKey(m_folder, ListFile::PaywayList);
        QCOMPARE(payways.constFirst().toString(), cash);
        // The file is the XML form.
        QVERIFY(readBytes(path).startsWith("<?xml"));

        QVERIFY(ListFile::preferenceDataListForKey(m_folder, QLatin1StringView("NoSuchList")).isEmpty());
    }

    void initialColoursCycleWithIncomeGray_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QList<RgbaColor>>("expected");
        QList<RgbaColor> palette;
        for (int i = 0; i < CategoryPalette::size(); ++i)
            palette.append(CategoryPalette::colorAt(i));
        QTest::newRow("the palette, then income")
            << CategoryPalette::size() + 1 << (palette + QList<RgbaColor>{kGray});
        QTest::newRow("round again") << CategoryPalette::size() + 2
                                     << (palette + QList<RgbaColor>{palette.first(), kGray});
        QTest::newRow("one category") << 1 << QList<RgbaColor>{kGray};
        QTest::newRow("none") << 0 << QList<RgbaColor>{};
    }

    void initialColoursCycleWithIncomeGray()
    {
        QFETCH(int, count);
        QFETCH(QList<RgbaColor>, expected);
        const QList<QByteArray> archives = ColorArchive::initialColors(count);
        QCOMPARE(archives.size(), expected.size());
        for (qsizetype i = 0; i < archives.size(); ++i)
            QCOMPARE(ColorArchive::decode(archives.at(i)).value_or(RgbaColor{}), expected.at(i));
    }

    void namedColoursAreTheMacArchives()
    {
        QCOMPARE(ColorArchive::encode(kBlue).toHex(),
                 QByteArray("040b73747265616d747970656481e803840140848484074e53436f6c6f72008484084e534f62"
                            "6a6563740085840163018404666666660000010186"));
        QCOMPARE(ColorArchive::encodeWhite(0.5f).toHex(),
                 QByteArray("040b73747265616d747970656481e803840140848484074e53436f6c6f72008484084e534f62"
                            "6a65637400858401630384026666830000003f0186"));
        QCOMPARE(ColorArchive::encodeWhite(0).size(), 55); // black: both components one byte
    }

    void coloursOfEveryKindDecode()
    {
        const auto archive = [](auto encode) {
            int identity = 0;
            return TypedStreamWriter::archiveRootObject(&identity, {{"NSColor", 0}, {"NSObject", 0}},
                                                        encode);
        };
        const auto cmyk = archive([](TypedStreamWriter &w) {
            w.encodeChar(5);
            w.encodeFloats({0, 1, 1, 0, 1}); // pure red in print colours
        });
        QCOMPARE(ColorArchive::decode(cmyk).value_or(RgbaColor{}), (RgbaColor{1, 0, 0, 1}));

        const auto deviceWhite = archive([](TypedStreamWriter &w) {
            w.encodeChar(4);
            w.encodeFloats({1, 0.25f});
        });
        QCOMPARE(ColorArchive::decode(deviceWhite).value_or(RgbaColor{}), (RgbaColor{1, 1, 1, 0.25f}));

        // A named system colour carries its current value as a nested colour.
        int nested = 0;
        const auto named = archive([&nested](TypedStreamWriter &w) {
            w.encodeChar(6);
            w.encodeString(u"System"_s);
            w.encodeString(u"textColor"_s);
            w.encodeObject(&nested, {{"NSColor", 0}, {"NSObject", 0}}, [](TypedStreamWriter &cw) {
                cw.encodeChar(3);
                cw.encodeFloats({0, 1});
            });
        });
        QCOMPARE(ColorArchive::decode(named).value_or(RgbaColor{}), (RgbaColor{0, 0, 0, 1}));

        QString error;
        const auto unknownKind = archive([](TypedStreamWriter &w) {
            w.encodeChar(9);
            w.encodeFloats({1});
        });
        QVERIFY(!ColorArchive::decode(unknownKind, &error));
        QVERIFY(!error.isEmpty());
        error.clear();
        QVERIFY(!ColorArchive::decode(QByteArray("junk"), &error));
        QVERIFY(!error.isEmpty());
        const auto missing = archive([](TypedStreamWriter &w) { w.encodeChar(1); });
        QVERIFY(!ColorArchive::decode(missing));
    }

    void writingOneListKeepsTheOthers()
    {
        const QVariantList categories = ListFile::preferenceDataListForKey(m_folder, ListFile::CategoryList);
        const QVariantList colors = ListFile::preferenceDataListForKey(m_folder, ListFile::ColorList);
        const QVariantList payways{u"Purse"_s, u"Card ✓"_s};
        QVERIFY(ListFile::setPreferenceDataListForKey(m_folder, payways, ListFile::PaywayList));
        QCOMPARE(ListFile::preferenceDataListForKey(m_folder, ListFile::PaywayList), payways);
        QCOMPARE(ListFile::preferenceDataListForKey(m_folder, ListFile::CategoryList), categories);
        QCOMPARE(ListFile::preferenceDataListForKey(m_folder, ListFile::ColorList), colors);
    }

    void binaryListFilesRead()
    {
        writeBytes(ListFile::dictionaryPathString(m_folder),
                   QByteArray::fromHex(
                       "62706c6973743030d30102030407095c43617465676f72794c69737459436f6c6f724c69737"
                       "45a5061797761794c697374a2050654466f6f6456496e636f6d65a108420102a10a544361736808"
                       "0f1c26313439404245470000000000000101000000000000000b0000000000000000000000000000004c"));
        QCOMPARE(ListFile::preferenceDataListForKey(m_folder, ListFile::CategoryList),
                 (QVariantList{u"Food"_s, u"Income"_s}));
        QCOMPARE(ListFile::preferenceDataListForKey(m_folder, ListFile::ColorList),
                 QVariantList{QByteArray("\x01\x02")});
        QCOMPARE(ListFile::preferenceDataListForKey(m_folder, ListFile::PaywayList),
                 QVariantList{u"Cash"_s});
    }

    void unreadableListFileIsNeverReplaced_data()
    {
        const auto plist = [](const char *body) {
            return QByteArray("<?xml version=\"1.0\"?><plist version=\"1.0\">") + body
                + QByteArray("</plist>");
        };
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("garbage") << QByteArray("garbage");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut short") << QByteArray("<?xml version=\"1.0\"?><plist><dict><key>");
        QTest::newRow("broken binary") << QByteArray("bplist00\xff\xff\xff", 11);
        QTest::newRow("no dictionary") << plist("<array><string>Food</string></array>");
        QTest::newRow("a string for a list")
            << plist("<dict><key>CategoryList</key><string>Food</string>"
                     "<key>PaywayList</key><array/></dict>");
        QTest::newRow("numbers for names")
            << plist("<dict><key>CategoryList</key><array><integer>1</integer></array>"
                     "<key>PaywayList</key><array/></dict>");
        QTest::newRow("no payways") << plist("<dict><key>CategoryList</key><array><string>Food</string>"
                                             "</array></dict>");
        QTest::newRow("no categories")
            << plist("<dict><key>CategoryList</key><array/><key>PaywayList</key><array/></dict>");
        QTest::newRow("names for colours")
            << plist("<dict><key>CategoryList</key><array><string>Food</string></array>"
                     "<key>ColorList</key><array><string>red</string></array>"
                     "<key>PaywayList</key><array/></dict>");
    }

    void unreadableListFileIsNeverReplaced()
    {
        QFETCH(QByteArray, bytes);
        const QString path = ListFile::dictionaryPathString(m_folder);
        writeBytes(path, bytes);
        QString why;
        QVERIFY(!ListFile::read(m_folder, &why));
        QVERIFY2(why.contains(path), qPrintable(why));
        QVERIFY(ListFile::preferenceDataListForKey(m_folder, ListFile::CategoryList).isEmpty());
        why.clear();
        QVERIFY(!ListFile::setPreferenceDataListForKey(m_folder, {u"Cash"_s}, ListFile::PaywayList, &why));
        QVERIFY(!why.isEmpty());
        QCOMPARE(readBytes(path), bytes);
        QCOMPARE(QDir(m_folder).entryList(QDir::Files | QDir::Hidden), QStringList{u"Data.penwick"_s});
    }

private:
    TestDataFolder m_home;
    QString m_folder;
};

QTEST_GUILESS_MAIN(TestListFile)
#include "tst_listfile.moc"
