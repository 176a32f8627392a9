#include "TestDataFolder.h"

#include "entry/DescriptionMemory.h"
#include "model/PaymentData.h"
#include "settings/Settings.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

using Record = DescriptionMemory::Record;

// Books "details" or "details=amount"; "fill" books C1 to C8 three times
// each, which fills the common list.
void book(DescriptionMemory &memory, const QStringList &bookings)
{
    for (const QString &booking : bookings) {
        if (booking == u"fill"_s) {
            for (int round = 0; round < 3; ++round) {
                for (int i = 1; i <= 8; ++i)
                    book(memory, {u"C%1"_s.arg(i)});
            }
            continue;
        }
        const QStringList part = booking.split(u'=');
        const PaymentData record(2026, 11, 22, 2, part.at(0), part.value(1, u"800"_s).toFloat(), 0);
        memory.addNewDescription(record);
    }
}

// "details:count", and ":amount" when it is not the usual 800.
QStringList shown(const QList<Record> &records)
{
    QStringList texts;
    for (const Record &r : records) {
        texts.append(u"%1:%2"_s.arg(r.details).arg(r.count)
                     + (r.amount == 800 ? QString() : u":%1"_s.arg(r.amount)));
    }
    return texts;
}

QStringList detailsOf(const QList<Record> &records)
{
    QStringList texts;
    for (const Record &r : records)
        texts.append(r.details);
    return texts;
}

QStringList filledCommon(int last = 1)
{
    QStringList texts;
    for (int i = 8; i >= last; --i)
        texts.append(u"C%1:3"_s.arg(i));
    return texts;
}

} // namespace

class TestDescriptionMemory : public QObject
{
    Q_OBJECT

private slots:
    void bookings_data()
    {
        QTest::addColumn<QStringList>("bookings");
        QTest::addColumn<QStringList>("common");
        QTest::addColumn<QStringList>("recent");
        const auto split = [](const QString &text) { return text.split(u' ', Qt::SkipEmptyParts); };
        const QStringList fill{u"fill"_s};
        const QStringList aToF = split(u"A B C D E F"_s);

        QTest::newRow("first booking is common only") << QStringList{u"Lunch"_s}
                                                      << QStringList{u"Lunch:1"_s} << QStringList();
        QTest::newRow("booked again, the last amount; empty never")
            << QStringList{u"Lunch"_s, u""_s, u"Lunch=950"_s} << QStringList{u"Lunch:2:950"_s}
            << QStringList();
        QTest::newRow("ties go to the latest") << split(u"Bread Milk"_s) << split(u"Milk:1 Bread:1"_s)
                                               << QStringList();
        QTest::newRow("by count; case and spaces differ")
            << QStringList{u"Bread"_s, u"Milk"_s, u"Bread"_s, u"bread"_s, u"Bread "_s}
            << QStringList{u"Bread:2"_s, u"Bread :1"_s, u"bread:1"_s, u"Milk:1"_s} << QStringList();
        QTest::newRow("full common list: a rare one is recent")
            << fill + QStringList{u"Taxi"_s} << filledCommon() << QStringList{u"Taxi"_s};
        QTest::newRow("recent: newest first, five") << fill + aToF << filledCommon() << split(u"F E D C B"_s);
        QTest::newRow("recent booked again comes first")
            << fill + aToF + QStringList{u"D"_s} << filledCommon() << split(u"D F E C B"_s);
        // Count 3 ties with the common ones: promoted, and offered twice for a
        // while, since the recent list keeps it.
        const QStringList rent = split(u"Rent Rent Rent"_s);
        const QStringList promoted = QStringList{u"Rent:3"_s} + filledCommon(2);
        QTest::newRow("promoted, still recent") << fill + rent << promoted << QStringList{u"Rent"_s};
        QTest::newRow("promoted, then pushed out of recent")
            << fill + rent + aToF.first(5) << promoted << split(u"E D C B A"_s);
    }

    void bookings()
    {
        QFETCH(QStringList, bookings);
        QFETCH(QStringList, common);
        QFETCH(QStringList, recent);
        DescriptionMemory memory;
        book(memory, bookings);
        QCOMPARE(shown(memory.commonDescriptions()), common);
        QCOMPARE(detailsOf(memory.recentDescriptions()), recent);
        // The database holds each common record as it is offered, and the
        // offer is the common ones, then the recent ones.
        for (const Record &r : memory.commonDescriptions())
            QCOMPARE(memory.commonDescriptionsDB().value(r.details), r);
        QStringList offered;
        for (int i = 0; i < memory.numberOfItems(); ++i)
            offered.append(memory.itemAt(i).details);
        QCOMPARE(offered, detailsOf(memory.commonDescriptions()) + recent);
        QCOMPARE(memory.itemAt(memory.numberOfItems()), Record());
    }

    void survivesTheSettings()
    {
        DescriptionMemory memory;
        book(memory, {u"fill"_s, u"Taxi=1234.5"_s});
        memory.writeToDefault();
        DescriptionMemory readBack;
        readBack.readRecentItemsFromDefault();
        QCOMPARE(readBack.commonDescriptions(), memory.commonDescriptions());
        QCOMPARE(readBack.recentDescriptions(), memory.recentDescriptions());
        QCOMPARE(readBack.commonDescriptionsDB(), memory.commonDescriptionsDB());
        QCOMPARE(readBack.recentDescriptions().first().amount, 1234.5f);

        // A stored common list longer than this memory makes is read back
        // untrimmed, yet offers only five.
        QVariantList common;
        for (int i = 0; i < 10; ++i)
            common.append(Record{u"S%1"_s.arg(i), 0, 1, 10 - i}.toVariantMap());
        Settings().setCommonDescriptions(common);
        Settings().setRecentDescriptions({Record{u"R"_s, 1, 2, 1}.toVariantMap()});
        readBack.readRecentItemsFromDefault();
        QCOMPARE(readBack.commonDescriptions().size(), 10);
        QCOMPARE(readBack.numberOfItems(), 6);
    }

private:
    TestDataFolder m_home;
};

QTEST_GUILESS_MAIN(TestDescriptionMemory)
#include "tst_descriptionmemory.moc"
