#include "DumpCommand.h"
#include "LunchMonth.h"

#include "model/MonthDataList.h"
#include "model/PaymentData.h"
#include "storage/MonthFile.h"
#include "storage/TypedStreamReader.h"
#include "storage/TypedStreamWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

// The length and bytes of "Lunch" in it.
const char LunchHex[] = "054c756e6368";

// A little-endian stream whose root object of class T holds what follows.
const QByteArray RootOfClassT = QByteArray(LittleEndianHeaderHex) + RootOfClassTHex;

const TypedStreamClassChain TClasses{{"T", 0}, {"NSObject", 0}};

QByteArray lunchMonth()
{
    return QByteArray::fromHex(LunchMonthHex);
}

QJsonObject parseJson(const char *text)
{
    return QJsonDocument::fromJson(text).object();
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// The values of the root object.
QJsonArray rootValues(const QByteArray &data)
{
    const TypedStreamReader reader(data);
    if (!reader.isValid())
        return {};
    return DumpCommand::streamToJson(reader)[u"values"_s][0][u"values"_s].toArray();
}

struct Run
{
    int status = -1;  // stays -1 when the program crashed or hung
    QByteArray out;
    QByteArray err;
};

Run penwickctl(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(PENWICKCTL_PATH), arguments);
    Run run;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

} // namespace

class TestPenwickctl : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_lunchPath = writeFile(u"lunch.month"_s, lunchMonth());
    }

    void jsonOfMonthFile()
    {
        const QByteArray data = lunchMonth();
        QCOMPARE(data.size(), 178);
        const char *const expected = R"({
          "byteOrder": "little-endian", "systemVersion": 1000,
          "values": [{"type": "@", "object": 1,
            "classes": [{"name": "MonthDataList", "version": 2}, {"name": "DataList", "version": 1},
                        {"name": "NSObject", "version": 0}],
            "values": [
              {"type": "i", "value": 2006}, {"type": "i", "value": 5},
              {"type": "@", "object": 2,
               "classes": [{"name": "NSMutableArray", "version": 0},
                           {"name": "NSArray", "version": 0}, {"name": "NSObject", "version": 0}],
               "values": [
                 {"type": "i", "value": 1},
                 {"type": "@", "object": 3,
                  "classes": [{"name": "PaymentData", "version": 2},
                              {"name": "NSObject", "version": 0}],
                  "values": [
                    {"type": "i", "value": 2006}, {"type": "i", "value": 5},
                    {"type": "i", "value": 3}, {"type": "i", "value": 2},
                    {"type": "@", "object": 4,
                     "classes": [{"name": "NSString", "version": 1},
                                 {"name": "NSObject", "version": 0}],
                     "values": [{"type": "+", "text": "Lunch"}]},
                    {"type": "f", "value": 800}, {"type": "i", "value": 0}]}]},
              {"type": "@", "object": 5,
               "classes": [{"name": "NSString", "version": 1}, {"name": "NSObject", "version": 0}],
               "values": [{"type": "+", "text": "memo"}]}]}]})";
        const TypedStreamReader reader(data);
        QVERIFY2(reader.isValid(), qPrintable(reader.errorString()));
        QCOMPARE(compact(DumpCommand::streamToJson(reader)), compact(parseJson(expected)));
    }

    void references_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QByteArray>("expected");  // the root's values

        // The root holds one object twice (the second time as a reference), nil,
        // and another object, which must get the next number.
        int root = 0;
        int shared = 0;
        int other = 0;
        QTest::newRow("shared object and nil")
            << TypedStreamWriter::archiveRootObject(&root, TClasses, [&](TypedStreamWriter &w) {
                   w.encodeObject(&shared, TClasses, [](TypedStreamWriter &sw) { sw.encodeInt(7); });
                   w.encodeObject(&shared, TClasses, [](TypedStreamWriter &) {});
                   w.encodeNil();
                   w.encodeObject(&other, TClasses, [](TypedStreamWriter &) {});
               })
            << QByteArray(R"({"values": [
                 {"type": "@", "object": 2,
                  "classes": [{"name": "T", "version": 0}, {"name": "NSObject", "version": 0}],
                  "values": [{"type": "i", "value": 7}]},
                 {"type": "@", "ref": 2},
                 {"type": "@", "value": null},
                 {"type": "@", "object": 3,
                  "classes": [{"name": "T", "version": 0}, {"name": "NSObject", "version": 0}],
                  "values": []}]})");

        // As other programs write them (this one cannot): the root (O0) holds a
        // new object O3 of class T (the label of O1), whose one value is the
        // root, still being read.
        QTest::newRow("child pointing back to its parent")
            << QByteArray::fromHex(RootOfClassT + "92" "84" "93" "9292" "86" "86")
            << QByteArray(R"({"values": [
                 {"type": "@", "object": 2,
                  "classes": [{"name": "T", "version": 0}, {"name": "NSObject", "version": 0}],
                  "values": [{"type": "@", "ref": 1}]}]})");
    }

    void references()
    {
        QFETCH(QByteArray, data);
        QFETCH(QByteArray, expected);
        const Run run = penwickctl({u"dump"_s, writeFile(u"references.archive"_s, data)});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        const QJsonValue values = QJsonDocument::fromJson(run.out)[u"values"_s][0][u"values"_s];
        QCOMPARE(compact({{u"values"_s, values}}), compact(parseJson(expected.constData())));
    }

    void numbers()
    {
        // One group "Qffd": the largest unsigned 64-bit number, 0.1f, a float NaN
        // and a double minus infinity.
        const QByteArray data = QByteArray::fromHex(RootOfClassT
                                                    + "84045166666487ffffffffffffffff83cdcccc3d"
                                                      "830000c07f83000000000000f0ff86");
        const char *const expected = R"({"values": [
          {"type": "Q", "value": "18446744073709551615"}, {"type": "f", "value": 0.1},
          {"type": "f", "value": "nan"}, {"type": "d", "value": "-inf"}]})";
        QCOMPARE(compact({{u"values"_s, rootValues(data)}}), compact(parseJson(expected)));
    }

    void byteStrings_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("shown");
        QTest::newRow("UTF-8") << "L\xc3\xbcnch"_ba << u"text"_s << u"L\u00fcnch"_s;
        QTest::newRow("byte order mark kept")
            << "\xef\xbb\xbfLunch"_ba << u"text"_s << u"\ufeffLunch"_s;
        QTest::newRow("Latin-1") << "L\xfcnch"_ba << u"hex"_s << u"4cfc6e6368"_s;
        QTest::newRow("cut UTF-8") << "Lunc\xc3"_ba << u"hex"_s << u"4c756e63c3"_s;
    }

    void byteStrings()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, key);
        QFETCH(QString, shown);
        QByteArray data = lunchMonth();
        data.replace(QByteArray::fromHex(LunchHex), char(bytes.size()) + bytes);
        // The root's array, its record, the record's details string, its bytes.
        const QJsonValue details =
            rootValues(data)[2][u"values"_s][1][u"values"_s][4][u"values"_s][0];
        QCOMPARE(compact(details.toObject()),
                 compact({{u"type"_s, u"+"_s}, {key, shown}}));
    }

    // The lunch month's own lines are checked on the program's output.
    void entriesStayOnOneLine()
    {
        MonthDataList month(2024, 2);
        month.setSummary(u"rent due\nC:\\bills"_s);
        month.setDataListArray({
            std::make_shared<PaymentData>(2024, 2, 29, 5, u"Tea\tand\r\ncake, 100%1"_s, 1234.5f, 1),
            std::make_shared<PaymentData>(2024, 2, 1, 0, QString(), 0.1f, 2),
            std::make_shared<PaymentData>(2024, 3, 31, 1, u"Car"_s, 1e6f, 0),
            std::make_shared<PaymentData>(2024, 2, 2, 3, u"Refund"_s, -12.25f, 4),
        });
        QCOMPARE(DumpCommand::entriesToText(month),
                 u"# rent due\\nC:\\\\bills\n"
                 "2024/2/29\t5\tTea\\tand\\r\\ncake, 100%1\t1234.5\t1\n"
                 "2024/2/1\t0\t\t0.1\t2\n"
                 "2024/3/31\t1\tCar\t1000000\t0\n"
                 "2024/2/2\t3\tRefund\t-12.25\t4\n"_s);
    }

    void runs()
    {
        const Run entries = penwickctl({u"dump"_s, u"--entries"_s, m_lunchPath});
        QCOMPARE(entries.status, 0);
        QCOMPARE(entries.err, QByteArray());
        QCOMPARE(entries.out, "# memo\n2006/5/3\t2\tLunch\t800\t0\n"_ba);

        // Options after the command's name are the command's.
        const Run help = penwickctl({u"dump"_s, u"--help"_s});
        QCOMPARE(help.status, 0);
        QVERIFY(help.out.contains(" dump [options] FILE"));
    }

    void unreadableInput_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("entries");
        QTest::addColumn<QString>("reason");

        QTest::newRow("missing") << m_dir.filePath(u"absent.month"_s) << false
                                 << u"No such file or directory"_s;

        const QByteArray truncated = lunchMonth().first(100);
        const QString truncatedPath = writeFile(u"truncated.month"_s, truncated);
        const QString readerError = TypedStreamReader(truncated).errorString();
        QVERIFY(readerError.startsWith(u"at byte "_s));
        QTest::newRow("truncated") << truncatedPath << false << readerError;
        QTest::newRow("truncated, entries") << truncatedPath << true << readerError;

        // The month files stay strict: a memo that is the month itself is refused.
        QByteArray selfMemo = lunchMonth();
        selfMemo.replace(QByteArray::fromHex("849c9b046d656d6f86"), QByteArray::fromHex("92"));
        const QString cycleError = TypedStreamReader(selfMemo).errorString();
        QVERIFY(cycleError.endsWith(u"an object refers to an object that contains it"_s));
        QTest::newRow("memo pointing back to its month, entries")
            << writeFile(u"self-memo.month"_s, selfMemo) << true << cycleError;

        // A sound archive whose root is not a month.
        int root = 0;
        const QByteArray other = TypedStreamWriter::archiveRootObject(
            &root, TClasses, [](TypedStreamWriter &w) { w.encodeInt(1); });
        QString monthError;
        QVERIFY(!MonthFile::decode(other, &monthError));
        QTest::newRow("not a month") << writeFile(u"other.archive"_s, other) << true << monthError;
    }

    void unreadableInput()
    {
        QFETCH(QString, path);
        QFETCH(bool, entries);
        QFETCH(QString, reason);
        const Run run = penwickctl(entries ? QStringList{u"dump"_s, u"--entries"_s, path}
                                           : QStringList{u"dump"_s, path});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(QString::fromUtf8(run.err), u"penwickctl: %1: %2\n"_s.arg(path, reason));
    }

    void usageErrors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("nothing") << QStringList();
        QTest::newRow("unknown command") << QStringList{u"lunch"_s};
        QTest::newRow("option before the command") << QStringList{u"--entries"_s, u"dump"_s};
        QTest::newRow("no file") << QStringList{u"dump"_s, u"--entries"_s};
        QTest::newRow("unknown option") << QStringList{u"dump"_s, u"--entry"_s, m_lunchPath};
    }

    void usageErrors()
    {
        QFETCH(QStringList, arguments);
        const Run run = penwickctl(arguments);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.out, QByteArray());
        QVERIFY2(run.err.startsWith("penwickctl: "), run.err.constData());
    }

private:
    QString writeFile(const QString &name, const QByteArray &data)
    {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

    QTemporaryDir m_dir;
    QString m_lunchPath;
};

QTEST_GUILESS_MAIN(TestPenwickctl)

#include "tst_penwickctl.moc"
