#include "TestDataFolder.h"

#include "entry/DescriptionMemory.h"
#include "model/PaymentData.h"
#include "settings/Settings.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

using Record = DescriptionMemory::Record;

void book(DescriptionMemory &memory, const QString &details, int category = 2, float amount = 800)
{
    PaymentData record(2026, 11, 22, category, details, amount, 0);
    memory.addNewDescription(record);
}

QStringList detailsOf(const QList<Record> &records)
{
    QStringList texts;
    for (const Record &r : records)
        texts.append(r.details);
    return texts;
}

QStringList offered(const DescriptionMemory &memory)
{
    QStringList texts;
    for (int i = 0; i < memory.numberOfItems(); ++i)
        texts.append(memory.itemAt(i).details);
    return texts;
}

// Eight common descriptions booked three times each, C1 to C8.
void fillCommonList(DescriptionMemory &memory)
{
    for (int round = 0; round < 3; ++round) {
        for (int i = 1; i <= 8; ++i)
            book(memory, u"C%1"_s.arg(i));
    }
}

} // namespace

class TestDescriptionMemory : public QObject
{
    Q_OBJECT

private slots:
    void firstBookingGoesToTheCommonListOnly();
    void commonListOrdersByCountAndTiesGoToTheLatest();
    void fullCommonListKeepsRareDescriptionsRecent();
    void recentListIsNewestFirstAndHoldsFive();
    void promotedDescriptionStaysRecentToo();
    void offeredItemsAreCommonThenRecent();
    void oversizedStoredCommonListOffersFive();
    void survivesTheSettings();

private:
    TestDataFolder m_home;
};

void TestDescriptionMemory::firstBookingGoesToTheCommonListOnly()
{
    DescriptionMemory memory;
    book(memory, u"Lunch"_s, 2, 800);
    QCOMPARE(memory.commonDescriptions(), (QList<Record>{Record{u"Lunch"_s, 2, 800, 1}}));
    QVERIFY(memory.recentDescriptions().isEmpty());
    QCOMPARE(memory.commonDescriptionsDB().value(u"Lunch"_s), memory.itemAt(0));

    // An empty description is never remembered.
    book(memory, QString());
    QCOMPARE(memory.numberOfItems(), 1);
    QCOMPARE(memory.commonDescriptionsDB().size(), 1);

    // Booked again, the amount and category are replaced.
    book(memory, u"Lunch"_s, -1, 950);
    QCOMPARE(memory.numberOfItems(), 1);
    QCOMPARE(memory.itemAt(0), (Record{u"Lunch"_s, -1, 950, 2}));
    QCOMPARE(memory.commonDescriptionsDB().value(u"Lunch"_s), memory.itemAt(0));
}

void TestDescriptionMemory::commonListOrdersByCountAndTiesGoToTheLatest()
{
    DescriptionMemory memory;
    book(memory, u"Bread"_s);
    book(memory, u"Milk"_s);
    QCOMPARE(detailsOf(memory.commonDescriptions()), QStringList({u"Milk"_s, u"Bread"_s}));

    book(memory, u"Bread"_s);
    QCOMPARE(detailsOf(memory.commonDescriptions()), QStringList({u"Bread"_s, u"Milk"_s}));
    QCOMPARE(memory.commonDescriptions().first().count, 2);

    // Case and spaces make a different description.
    book(memory, u"bread"_s);
    book(memory, u"Bread "_s);
    QCOMPARE(detailsOf(memory.commonDescriptions()),
             QStringList({u"Bread"_s, u"Bread "_s, u"bread"_s, u"Milk"_s}));
}

void TestDescriptionMemory::fullCommonListKeepsRareDescriptionsRecent()
{
    DescriptionMemory memory;
    fillCommonList(memory);
    const QStringList common = detailsOf(memory.commonDescriptions());
    QCOMPARE(common.size(), DescriptionMemory::maxOfCommonDescriptions);

    book(memory, u"Taxi"_s);
    QCOMPARE(detailsOf(memory.commonDescriptions()), common);
    QCOMPARE(detailsOf(memory.recentDescriptions()), QStringList{u"Taxi"_s});
    QCOMPARE(memory.recentDescriptions().first().count, 1);
    QCOMPARE(memory.commonDescriptionsDB().value(u"Taxi"_s).count, 1);
}

void TestDescriptionMemory::recentListIsNewestFirstAndHoldsFive()
{
    DescriptionMemory memory;
    fillCommonList(memory);
    for (const QString &d : {u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s, u"F"_s})
        book(memory, d);
    QCOMPARE(detailsOf(memory.recentDescriptions()),
             QStringList({u"F"_s, u"E"_s, u"D"_s, u"C"_s, u"B"_s}));

    // Booking a recent description again moves it to the front, once.
    book(memory, u"D"_s);
    QCOMPARE(detailsOf(memory.recentDescriptions()),
             QStringList({u"D"_s, u"F"_s, u"E"_s, u"C"_s, u"B"_s}));
}

void TestDescriptionMemory::promotedDescriptionStaysRecentToo()
{
    DescriptionMemory memory;
    fillCommonList(memory);
    book(memory, u"Rent"_s);
    book(memory, u"Rent"_s);
    QCOMPARE(detailsOf(memory.recentDescriptions()), QStringList{u"Rent"_s});
    QVERIFY(!memory.isCommonDescriptionContainsData({u"Rent"_s}));

    // Count 3 ties with the common entries, and ties go to the latest
    // booking: Rent is promoted, the last common entry drops out, and Rent
    // is offered twice for a while.
    book(memory, u"Rent"_s);
    QCOMPARE(memory.commonDescriptions().first().details, u"Rent"_s);
    QCOMPARE(memory.commonDescriptions().first().count, 3);
    QCOMPARE(memory.commonDescriptions().size(), DescriptionMemory::maxOfCommonDescriptions);
    QVERIFY(!memory.isCommonDescriptionContainsData({u"C1"_s}));
    QCOMPARE(offered(memory).count(u"Rent"_s), 2);

    for (const QString &d : {u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s})
        book(memory, d);
    QCOMPARE(offered(memory).count(u"Rent"_s), 1);
}

void TestDescriptionMemory::offeredItemsAreCommonThenRecent()
{
    DescriptionMemory memory;
    fillCommonList(memory);
    book(memory, u"Taxi"_s);
    book(memory, u"Cake"_s);
    QCOMPARE(memory.numberOfItems(), 10);
    QStringList expected = detailsOf(memory.commonDescriptions());
    expected << u"Cake"_s << u"Taxi"_s;
    QCOMPARE(offered(memory), expected);
    QCOMPARE(memory.itemAt(10), Record());
}

void TestDescriptionMemory::oversizedStoredCommonListOffersFive()
{
    QVariantList common;
    for (int i = 0; i < 10; ++i)
        common.append(Record{u"S%1"_s.arg(i), 0, 1, 10 - i}.toVariantMap());
    Settings().setCommonDescriptions(common);
    Settings().setRecentDescriptions({Record{u"R"_s, 1, 2, 1}.toVariantMap()});

    DescriptionMemory memory;
    memory.readRecentItemsFromDefault();
    // Read back untrimmed, yet only five of the common ones count.
    QCOMPARE(memory.commonDescriptions().size(), 10);
    QCOMPARE(memory.numberOfItems(), 6);
    Settings().setCommonDescriptions({});
    Settings().setRecentDescriptions({});
}

void TestDescriptionMemory::survivesTheSettings()
{
    DescriptionMemory memory;
    fillCommonList(memory);
    book(memory, u"Taxi"_s, -1, 1234.5f);
    memory.writeToDefault();

    DescriptionMemory readBack;
    readBack.readRecentItemsFromDefault();
    QCOMPARE(readBack.commonDescriptions(), memory.commonDescriptions());
    QCOMPARE(readBack.recentDescriptions(), memory.recentDescriptions());
    QCOMPARE(readBack.commonDescriptionsDB(), memory.commonDescriptionsDB());
    QCOMPARE(readBack.recentDescriptions().first().amount, 1234.5f);

    // Nothing stored reads as empty.
    Settings().setRecentDescriptions({});
    DescriptionMemory empty;
    empty.readRecentItemsFromDefault();
    QVERIFY(empty.recentDescriptions().isEmpty());
}

QTEST_GUILESS_MAIN(TestDescriptionMemory)
#include "tst_descriptionmemory.moc"
