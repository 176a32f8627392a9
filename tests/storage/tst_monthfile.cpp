#include "LedgerGenerator.h"
#include "LunchMonth.h"

#include "model/MonthDataList.h"
#include "storage/MonthFile.h"
#include "storage/TypedStreamWriter.h"

#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

// A month archive of the first versions: records store whole amounts as
// "l" and the list has no memo.
QByteArray versionOneMonth()
{
    const TypedStreamClassChain listChain{{"MonthDataList", 1}, {"DataList", 1}, {"NSObject", 0}};
    const TypedStreamClassChain recordChain{{"PaymentData", 1}, {"NSObject", 0}};
    int list = 0;
    int array = 0;
    int records[2] = {};
    return TypedStreamWriter::archiveRootObject(&list, listChain, [&](TypedStreamWriter &w) {
        w.encodeInt(2004);
        w.encodeInt(2);
        w.encodeArray(&array, TypedStreamWriter::ArrayClass::NSMutableArray, 2,
                      [&](TypedStreamWriter &aw, qsizetype i) {
                          aw.encodeObject(&records[i], recordChain, [i](TypedStreamWriter &rw) {
                              rw.encodeInt(2004);
                              rw.encodeInt(2);
                              rw.encodeInt(i == 0 ? 20 : 7);
                              rw.encodeInt(1);
                              rw.encodeString(i == 0 ? u"Books"_s : u"Bus"_s);
                              rw.encodeLong(i == 0 ? 250 : 230);
                              rw.encodeInt(3);
                          });
                      });
    });
}

} // namespace

class TestMonthFile : public QObject
{
    Q_OBJECT

private slots:
    void writesTheMacFormByteForByte()
    {
        MonthDataList list(2006, 5);
        list.setDataListArray({std::make_shared<PaymentData>(2006, 5, 3, 2, u"Lunch"_s, 800.0f, 0)});
        list.setSummary(u"memo"_s);
        const QByteArray bytes = MonthFile::encode(list);
        QCOMPARE(bytes.size(), 178);
        QCOMPARE(bytes.toHex(), QByteArray(LunchMonthHex));
    }

    void readsEveryForm_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("mutable array") << QByteArray::fromHex(LunchMonthHex);
        QTest::newRow("immutable array") << QByteArray::fromHex(LunchMonthArrayHex);
        QTest::newRow("big-endian") << QByteArray::fromHex(LunchMonthBigEndianHex);
    }

    void readsEveryForm()
    {
        QFETCH(QByteArray, bytes);
        QString error;
        const auto list = MonthFile::decode(bytes, &error);
        QVERIFY2(list, qPrintable(error));
        QCOMPARE(QList<int>({list->year(), list->month()}), QList<int>({2006, 5}));
        QCOMPARE(list->summary(), u"memo"_s);
        QVERIFY(!list->isEdited());
        QCOMPARE(list->dataListArray().size(), 1);
        const PaymentData &r = *list->dataListArray().constFirst();
        QCOMPARE(r.description(), u"Day:2006/5/3 Category:2 Details:Lunch Amount:800.000000 Payway:0"_s);
        QVERIFY(!r.initializing());
        QCOMPARE(list->grandTotal(), 800.0f);
    }

    void readsVersionOneArchives()
    {
        QString error;
        const auto list = MonthFile::decode(versionOneMonth(), &error);
        QVERIFY2(list, qPrintable(error));
        QCOMPARE(list->summary(), QString());
        QCOMPARE(list->dataListArray().size(), 2);
        // Sorted by day on reading.
        QCOMPARE(list->dataListArray().at(0)->details(), u"Bus"_s);
        QCOMPARE(list->dataListArray().at(0)->amount(), 230.0f);
        QCOMPARE(list->dataListArray().at(1)->amount(), 250.0f);
        QCOMPARE(list->dataListArray().at(1)->payway(), 3);
        QCOMPARE(list->grandTotal(), 480.0f);

        // Written again, the month takes the current form and keeps its values.
        const auto again = MonthFile::decode(MonthFile::encode(*list), &error);
        QVERIFY2(again, qPrintable(error));
        QCOMPARE(again->dataListArray().at(1)->amount(), 250.0f);
    }

    void roundTripKeepsEveryField()
    {
        LedgerGenerator generator;
        MonthDataList list(2006, 5);
        PaymentArray records = generator.monthRecords(2006, 5, 400);
        const float tiny = std::numeric_limits<float>::denorm_min();
        for (const auto &[details, amount] :
             {std::pair{u"日本語の説明 ✓"_s, -1234.5f}, std::pair{QString(), 0.1f},
              std::pair{u"line\nbreak\ttab"_s, tiny}, std::pair{u"huge"_s, 3.0e38f},
              std::pair{u"minus zero"_s, -0.0f}, std::pair{u"2147483647"_s, 2147483647.0f}})
            records.append(std::make_shared<PaymentData>(2006, 5, 31, -1, details, amount, 99));
        list.setDataListArray(records);
        list.setSummary(u"Memo with\nlines and émoji 🎉"_s);
        list.dataHasChanged();

        QString error;
        const auto back = MonthFile::decode(MonthFile::encode(list), &error);
        QVERIFY2(back, qPrintable(error));
        QCOMPARE(back->summary(), list.summary());
        QCOMPARE(back->dataListArray().size(), list.dataListArray().size());
        for (qsizetype i = 0; i < list.dataListArray().size(); ++i) {
            const PaymentData &a = *list.dataListArray().at(i);
            const PaymentData &b = *back->dataListArray().at(i);
            QCOMPARE(b.description(), a.description());
            // Bit for bit, except that an archive has no negative zero.
            QCOMPARE(b.amount() == 0 ? 0.0f : b.amount(), a.amount() == 0 ? 0.0f : a.amount());
        }
        QCOMPARE(back->grandTotal(), list.grandTotal());
    }

    void damagedFilesGiveErrors()
    {
        const QByteArray good = QByteArray::fromHex(LunchMonthHex);
        // Every cut of the file fails cleanly with a reason.
        for (qsizetype size = 0; size < good.size(); ++size) {
            QString error;
            QVERIFY(!MonthFile::decode(good.left(size), &error));
            QVERIFY2(!error.isEmpty(), qPrintable(QString::number(size)));
        }
        // A different root object, or a record whose values do not fit.
        int identity = 0;
        const QByteArray colour = TypedStreamWriter::archiveRootObject(
            &identity, {{"NSColor", 0}, {"NSObject", 0}}, [](TypedStreamWriter &w) {
                w.encodeChar(3);
                w.encodeFloats({0.5f, 1});
            });
        QString error;
        QVERIFY(!MonthFile::decode(colour, &error));
        QVERIFY(!error.isEmpty());

        QByteArray wrongType = good;
        wrongType.replace(QByteArray::fromHex("8401668120039600"), QByteArray::fromHex("8401698120039600"));
        QVERIFY(wrongType != good);
        error.clear();
        QVERIFY(!MonthFile::decode(wrongType, &error));
        QVERIFY(!error.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestMonthFile)
#include "tst_monthfile.moc"
