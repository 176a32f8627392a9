#include "LunchMonth.h"
#include "TestHelpers.h"

#include "storage/TypedStreamDecoder.h"
#include "storage/TypedStreamObject.h"
#include "storage/TypedStreamReader.h"
#include "storage/TypedStreamWriter.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTest>

#include <cmath>
#include <functional>
#include <vector>

namespace {

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

const char BigEndianHeader[] = "040b747970656473747265616d8103e8";

const TypedStreamClassChain TClasses{{"T", 0}, {"NSObject", 0}};

QByteArray oneValueStream(bool bigEndian, const QByteArray &type, const QByteArray &value)
{
    return hex(bigEndian ? BigEndianHeader : LittleEndianHeaderHex) + hex(RootOfClassTHex) + char(0x84)
        + char(type.size()) + type + value + char(0x86);
}

QString describe(const TypedStreamValue &value)
{
    const QString type = QString(QLatin1Char(value.type)) + u' ';
    const auto &data = value.data;
    if (const auto *integer = std::get_if<qint64>(&data))
        return type + QString::number(*integer);
    if (const auto *real = std::get_if<double>(&data))
        return type + QString::number(*real, 'g', 10);
    if (const auto *bytes = std::get_if<QByteArrayView>(&data))
        return type + QString::fromLatin1(*bytes);
    if (const auto *object = std::get_if<const TypedStreamObject *>(&data))
        return type + QString::fromLatin1((*object)->className());
    if (const auto *chain = std::get_if<TypedStreamClassChainView>(&data)) {
        QStringList classes;
        for (const TypedStreamClass &cls : *chain)
            classes << QStringLiteral("%1 %2").arg(QString::fromLatin1(cls.name)).arg(cls.version);
        return type + classes.join(u" > ");
    }
    if (const auto *members = std::get_if<TypedStreamValue::Members>(&data)) {
        QStringList parts;
        for (const TypedStreamValue &member : *members)
            parts << describe(member);
        return type + u'(' + parts.join(u", ") + u')';
    }
    return type + QStringLiteral("nil");
}

// Takes every value of every object reachable from the top level, as a
// generic consumer would; answers how many objects it met.
qsizetype visitAll(const TypedStreamReader &reader)
{
    QSet<const TypedStreamObject *> seen;
    std::vector<TypedStreamDecoder> pending{TypedStreamDecoder(reader)};
    const std::function<void(const TypedStreamValue &)> visit = [&](const TypedStreamValue &value) {
        if (const auto *object = std::get_if<const TypedStreamObject *>(&value.data)) {
            if (!seen.contains(*object)) {
                seen.insert(*object);
                pending.push_back(pending.front().decoderFor(*object));
            }
        } else if (const auto *members = std::get_if<TypedStreamValue::Members>(&value.data)) {
            for (const TypedStreamValue &member : *members)
                visit(member);
        }
    };
    for (std::size_t i = 0; i < pending.size(); ++i) {
        TypedStreamDecoder decoder = pending[i];
        while (const TypedStreamValue *value = decoder.decodeValue())
            visit(*value);
        decoder.finish();
    }
    return seen.size();
}

// Writes `depth` objects each holding the next one.
QByteArray nestedObjects(int depth)
{
    std::vector<int> identities(static_cast<std::size_t>(depth));
    std::function<void(TypedStreamWriter &, int)> nest = [&](TypedStreamWriter &w, int level) {
        if (level < depth)
            w.encodeObject(&identities[size_t(level)], TClasses,
                           [&](TypedStreamWriter &inner) { nest(inner, level + 1); });
    };
    return TypedStreamWriter::archiveRootObject(&depth, TClasses,
                                                [&](TypedStreamWriter &w) { nest(w, 1); });
}

} // namespace

class TestTypedStream : public QObject
{
    Q_OBJECT

private slots:
    void integers_data()
    {
        QTest::addColumn<char>("type");
        QTest::addColumn<qint64>("value");
        QTest::addColumn<QByteArray>("little");
        QTest::addColumn<QByteArray>("big");
        QTest::addColumn<bool>("shortest");
        const auto row = [](const char *name, char type, qint64 value, const char *little,
                            const char *big, bool shortest = true) {
            QTest::newRow(name) << type << value << hex(little) << hex(big) << shortest;
        };
        row("127", 'i', 127, "7f", "7f");
        row("128", 'i', 128, "818000", "810080");
        row("-110", 'i', -110, "92", "92");
        row("-111", 'i', -111, "8191ff", "81ff91");
        row("2006", 'i', 2006, "81d607", "8107d6");
        row("-500", 'i', -500, "810cfe", "81fe0c");
        row("32767", 'i', 32767, "81ff7f", "817fff");
        row("-32767", 'i', -32767, "810180", "818001");
        row("-32768", 'i', -32768, "820080ffff", "82ffff8000");
        row("2^31-1", 'i', 2147483647, "82ffffff7f", "827fffffff");
        row("-2^31", 'i', -2147483647 - 1, "8200000080", "8280000000");
        row("2^40", 'q', 1099511627776, "870000000000010000", "870000010000000000");
        row("-2^40", 'q', -1099511627776, "870000000000ffffff", "87ffffff0000000000");
        row("unsigned all ones", 'I', 4294967295, "ff", "ff", false);
        row("5 in two bytes", 'i', 5, "810500", "810005", false);
        row("5 in four bytes", 'i', 5, "8205000000", "8200000005", false);
        row("5 in eight bytes", 'i', 5, "870500000000000000", "870000000000000005", false);
    }

    void integers()
    {
        QFETCH(char, type);
        QFETCH(qint64, value);
        QFETCH(QByteArray, little);
        QFETCH(QByteArray, big);
        QFETCH(bool, shortest);

        if (shortest && type == 'i') {
            const QByteArray written = TypedStreamWriter::archiveRootObject(
                &value, TClasses, [&](TypedStreamWriter &w) { w.encodeInt(qint32(value)); });
            QCOMPARE(written.toHex(), oneValueStream(false, "i", little).toHex());
        }
        for (const bool bigEndian : {false, true}) {
            const TypedStreamReader reader(
                oneValueStream(bigEndian, QByteArray(1, type), bigEndian ? big : little));
            QVERIFY2(reader.isValid(), qPrintable(reader.errorString()));
            TypedStreamDecoder top(reader);
            const TypedStreamValue *read = top.decoderFor(top.decodeObject()).decodeValue();
            QVERIFY(read && read->type == type);
            QCOMPARE(std::get<qint64>(read->data), value);
        }
    }

    void reals_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<QByteArray>("little");
        QTest::addColumn<QByteArray>("big");
        const auto row = [](const char *name, float value, const char *little, const char *big) {
            QTest::newRow(name) << value << hex(little) << hex(big);
        };
        row("0.5", 0.5f, "830000003f", "833f000000");
        row("3.5", 3.5f, "8300006040", "8340600000");
        row("1234.5", 1234.5f, "8300509a44", "83449a5000");
        row("-1.5", -1.5f, "830000c0bf", "83bfc00000");
        row("800", 800.0f, "812003", "810320");
        row("1", 1.0f, "01", "01");
        row("-0 loses its sign", -0.0f, "00", "00");
        row("2^24", 16777216.0f, "8200000001", "8201000000");
        row("largest below 2^31", 2147483520.0f, "8280ffff7f", "827fffff80");
        row("2^31", 2147483648.0f, "830000004f", "834f000000");
        row("-2^31", -2147483648.0f, "83000000cf", "83cf000000");
    }

    void reals()
    {
        QFETCH(float, value);
        QFETCH(QByteArray, little);
        QFETCH(QByteArray, big);

        const QByteArray written = TypedStreamWriter::archiveRootObject(
            &value, TClasses, [&](TypedStreamWriter &w) { w.encodeFloat(value); });
        QCOMPARE(written.toHex(), oneValueStream(false, "f", little).toHex());
        for (const bool bigEndian : {false, true}) {
            const TypedStreamReader reader(oneValueStream(bigEndian, "f", bigEndian ? big : little));
            TypedStreamDecoder top(reader);
            const float read = top.decoderFor(top.decodeObject()).decodeFloat();
            QVERIFY2(!top.hasError(), qPrintable(top.errorString()));
            QCOMPARE(read, value);
            QVERIFY(!std::signbit(read) || value != 0);
        }
    }

    void labelsPastOneByte()
    {
        // Array A holds 431 new objects of class E, array B the same objects
        // again; array C holds 300 objects of classes K0..K299, whose names push
        // the shared-string table past 238 before "l" first appears.
        // Objects: O0 root, O1 Root, O2 NSObject, O3 A, O4 NSArray, O5 A[0],
        // O6 E, O(6+i) A[i]. Shared strings: @ Root NSObject NSArray i E K0..K299 l.
        std::vector<int> elements(431);
        std::vector<int> others(300);
        const int arrayA = 0;
        const int arrayB = 0;
        const auto element = [&](TypedStreamWriter &w, qsizetype i) {
            w.encodeObject(&elements[size_t(i)], {{"E", 0}, {"NSObject", 0}},
                           [i](TypedStreamWriter &e) { e.encodeInt(qint32(i)); });
        };
        const QByteArray data = TypedStreamWriter::archiveRootObject(
            &elements, {{"Root", 0}, {"NSObject", 0}}, [&](TypedStreamWriter &w) {
                w.encodeArray(&arrayA, TypedStreamWriter::ArrayClass::NSArray, 431, element);
                w.encodeArray(&arrayB, TypedStreamWriter::ArrayClass::NSArray, 431, element);
                w.encodeArray(&others, TypedStreamWriter::ArrayClass::NSArray, 300,
                              [&](TypedStreamWriter &a, qsizetype i) {
                    const TypedStreamClassChain classes{{"K" + QByteArray::number(i), 0},
                                                        {"NSObject", 0}};
                    a.encodeObject(&others[size_t(i)], classes,
                                   [i](TypedStreamWriter &k) { k.encodeInt(qint32(i)); });
                });
                w.encodeLong(2);
                w.encodeLong(3);
            });
        // B[103], B[104] are O109, O110; B[231], B[232] are O237, O238; B[423],
        // B[424] are O429, O430: each a "@" group with a label.
        QCOMPARE(data.count(hex("92ff9200")), 1);
        QCOMPARE(data.count(hex("927f92818000")), 1);
        QCOMPARE(data.count(hex("92813f0192814001")), 1);
        // "l" is shared string 306, label 196, the second time.
        QVERIFY(data.endsWith(hex("84016c02" "81c40003" "86")));

        const TypedStreamReader reader(data);
        TypedStreamDecoder top(reader);
        TypedStreamDecoder root = top.decoderFor(top.decodeObject());
        const QList<const TypedStreamObject *> first = root.decodeArray();
        QCOMPARE(root.decodeArray(), first);
        QCOMPARE(QSet<const TypedStreamObject *>(first.cbegin(), first.cend()).size(), 431);
        QCOMPARE(root.decoderFor(first[430]).decodeInt(), 430);
        const QList<const TypedStreamObject *> classes = root.decodeArray();
        QCOMPARE(classes.size(), 300);
        QCOMPARE(classes[299]->className(), QByteArray("K299"));
        QCOMPARE(root.decoderFor(classes[299]).decodeInt(), 299);
        QCOMPARE(root.decodeLong(), 2);
        QCOMPARE(root.decodeLong(), 3);
        QVERIFY2(root.finish(), qPrintable(root.errorString()));
        QCOMPARE(reader.versionForClassName("K250"), 0);
    }

    void sharedObjectsAndNil()
    {
        // The same object twice, then an equal one of its own.
        const int lunch = 3;
        const int equalLunch = 3;
        const std::vector<const int *> records{&lunch, &lunch, &equalLunch};
        const int array = 0;
        const QByteArray data = TypedStreamWriter::archiveRootObject(
            &records, TClasses, [&](TypedStreamWriter &w) {
                w.encodeArray(&array, TypedStreamWriter::ArrayClass::NSMutableArray, 3,
                              [&](TypedStreamWriter &a, qsizetype i) {
                    const int *r = records[size_t(i)];
                    a.encodeObject(r, TClasses, [r](TypedStreamWriter &p) { p.encodeInt(*r); });
                });
                w.encodeNil();
            });
        const TypedStreamReader reader(data);
        TypedStreamDecoder top(reader);
        TypedStreamDecoder root = top.decoderFor(top.decodeObject());
        const QList<const TypedStreamObject *> read = root.decodeArray();
        QCOMPARE(read.size(), 3);
        QCOMPARE(read[0], read[1]);
        QVERIFY(read[0] != read[2]);
        QCOMPARE(root.nextType(), '@');
        QCOMPARE(root.decodeString(), QString());
        QVERIFY2(root.finish(), qPrintable(root.errorString()));
    }

    void readsEveryValueKind()
    {
        const QByteArray data = hex(LittleEndianHeaderHex) + hex(
            "840140" "84"                            // "@" S0; new object O0
            "84840453696e6b03"                       // class O1 "Sink" (S1) version 3
            "8484084e534f626a65637400" "85"          // class O2 NSObject (S2); end of chain
            "840463437353" "fe" "fe" "81d4fe" "ff"   // "cCsS" S3
            "840149" "ff"                            // "I" S4: all bits
            "840171" "870000000000010000"            // "q" S5: 2^40
            "840151" "ff"                            // "Q" S6
            "840164" "839a9999999999b93f"            // "d" S7: 0.1
            "99" "8280014b01"                        // "d" again: a date written as an integer
            "84012a" "84840169"                      // "*" S8: new C string O3, new text S9 "i"
            "840125" "840461746f6d"                  // "%" S10: new S11 "atom"
            "84013a" "9d"                            // ":" S12: S11 again
            "9c" "85"                                // "%": nil
            "840123" "8484084e534e756d62657200"      // "#" S13: NSNumber O4 (S14)
            "8484074e5356616c756500" "94"            //   > NSValue O5 (S15) > O2
            "9f" "97"                                // "#": O5
            "840c7b5f4e5353697a653d66667d" "830000c03f" "02"  // "{_NSSize=ff}" S16
            "84045b33635d" "616263"                  // "[3c]" S17
            "84045b32695d" "0581d607"                // "[2i]" S18
            "92" "84" "96" "9a" "95" "9b" "07" "86"  // "@" new O6 NSNumber: "*" O3, "i" 7
            "92" "85"                                // "@" nil
            "8403692169" "01" "02"                   // "i!i" S19: the ignored field has no bytes
            "84024040" "849698959b0886" "99"         // "@@" S20: new O7 NSNumber 8, then O7
            "86");
        const TypedStreamReader reader(data);
        QVERIFY2(reader.isValid(), qPrintable(reader.errorString()));
        const TypedStreamObject *sink = reader.rootObject();
        QStringList described;
        for (const TypedStreamValue &value : sink->values)
            described << describe(value);
        const QStringList expected{
            "c -2", "C 254", "s -300", "S 65535", "I 4294967295", "q 1099511627776", "Q -1",
            "d 0.1", "d 21692800", "* i", "% atom", ": atom", "% nil",
            "# NSNumber 0 > NSValue 0 > NSObject 0", "# NSValue 0 > NSObject 0",
            "{ (f 1.5, f 2)", "[ abc", "[ (i 5, i 2006)", "@ NSNumber", "@ nil", "i 1", "i 2",
            "@ NSNumber", "@ NSNumber"};
        QCOMPARE(described, expected);
        QCOMPARE(reader.versionForClassName("Sink"), 3);
        QCOMPARE(reader.versionForClassName("NSValue"), 0);

        const auto objectAt = [&](std::size_t i) {
            return std::get<const TypedStreamObject *>(sink->values[i].data);
        };
        QCOMPARE(objectAt(22), objectAt(23));
        QStringList number;
        for (const TypedStreamValue &value : objectAt(18)->values)
            number << describe(value);
        QCOMPARE(number, QStringList({"* i", "i 7"}));
    }

    void decoderReportsMisuse()
    {
        const TypedStreamReader reader(hex(LunchMonthArrayHex));
        {
            TypedStreamDecoder top(reader);
            TypedStreamDecoder list = top.decoderFor(top.decodeObject());
            QCOMPARE(list.decodeFloat(), 0.0f);
            QCOMPARE(top.errorString(), QStringLiteral("MonthDataList: value 1 has type 'i', not 'f'"));
            QCOMPARE(list.decodeInt(), 0);  // the first error stays
            QCOMPARE(top.errorString(), QStringLiteral("MonthDataList: value 1 has type 'i', not 'f'"));
        }
        const auto errorOf = [&](const std::function<void(TypedStreamDecoder &)> &misuse) {
            TypedStreamDecoder top(reader);
            TypedStreamDecoder list = top.decoderFor(top.decodeObject());
            misuse(list);
            list.finish();
            return top.errorString();
        };
        QCOMPARE(errorOf([](TypedStreamDecoder &d) { d.decodeInt(); }),
                 QStringLiteral("MonthDataList: 3 values left unread"));
        QCOMPARE(errorOf([](TypedStreamDecoder &d) { d.decodeInt(); d.decodeInt(); d.decodeString(); }),
                 QStringLiteral("MonthDataList: expected a string, found an object of class NSArray"));
        QCOMPARE(errorOf([](TypedStreamDecoder &d) {
                     d.decodeInt(); d.decodeInt(); d.decodeArray(); d.decodeArray(); }),
                 QStringLiteral("MonthDataList: expected an array, found an object of class NSString"));
        QCOMPARE(errorOf([](TypedStreamDecoder &d) {
                     d.decodeInt(); d.decodeInt(); d.decodeArray(); d.decodeString(); d.decodeInt(); }),
                 QStringLiteral("MonthDataList: a value of type 'i' was asked for, "
                                "but no value is left"));
        QCOMPARE(errorOf([](TypedStreamDecoder &d) { d.decoderFor(nullptr); }),
                 QStringLiteral("nil: there is no object to decode"));

        const TypedStreamReader broken(hex(LunchMonthArrayHex).chopped(1));
        TypedStreamDecoder top(broken);
        QCOMPARE(top.decodeObject(), nullptr);
        QCOMPARE(top.errorString(), QStringLiteral("at byte 159: the data ends early"));
    }

    void refusesMalformedStreams_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("error");
        const QByteArray header = hex(LittleEndianHeaderHex);
        const QByteArray root = header + hex(RootOfClassTHex);
        const auto row = [](const char *name, const QByteArray &data, const char *error) {
            QTest::newRow(name) << data << QString::fromLatin1(error);
        };
        row("empty", {}, "the data ends early");
        row("streamer version 3", hex("030b73747265616d747970656481e803"), "streamer version 3");
        row("signature", hex("040b73747265616d74797065706481e803"), "signature");
        row("reserved tag 0x80", hex("040b73747265616d747970656480"), "reserved tag 0x80");
        row("reserved tag 0x88", hex("040b73747265616d747970656488"), "reserved tag 0x88");
        row("reserved tag 0x91", hex("040b73747265616d747970656491"), "reserved tag 0x91");
        row("end of object at top level", header + hex("86"), "tag 0x86 where an integer belongs");
        row("real for an integer", root + hex("840169830000000086"),
            "tag 0x83 where an integer belongs");
        row("truncated object", root, "the data ends early");
        row("group without type", root + hex("8586"), "a group without a type string");
        row("empty type string", root + hex("840086"), "an empty type string");
        row("unknown type code", root + hex("84017886"), "unknown type code 0x78");
        row("union", root + hex("8403286929" "0186"), "union values are not supported");
        row("unterminated struct", root + hex("84057b61623d69" "0186"), "an unterminated struct type");
        row("type nesting", root + hex("8479") + QByteArray(40, '[').replace("[", "[1") + "i"
                + QByteArray(40, ']') + char(0x86), "a type string nested too deeply");
        row("unknown shared string", root + hex("a086"),
            "label -96 refers to no earlier shared string");
        row("unknown object", root + hex("929586"), "label -107 refers to no earlier object");
        row("object inside itself", root + hex("929286"),
            "an object refers to an object that contains it");
        row("class of itself", header + hex("84014084848401540093" "86"), "refers to no earlier class");
        row("object as class", header + hex("840140849286"), "a class label refers to an object");
        row("C string label to an object", root + hex("84012a9286"), "refers to an object or class");
        row("object without class", header + hex("8401408485" "86"), "an object without a class");
        row("class version beyond 32 bits",
            header + hex("840140848484015487000000000100000085" "86"), "class version 4294967296");
        row("string beyond the data", root + hex("84012b7f414286"), "length 127 does not fit the data");
        row("byte array beyond the data", root + hex("840b5b3939393939393939635d" "86"),
            "99999999 bytes announced");
        row("array count beyond 32 bits", root + hex("840d5b39393939393939393939695d" "86"),
            "an array type of more than 2147483647 elements");
        row("two billion ignored elements", root + hex("840d5b32303030303030303030215d" "86"),
            "more work than its size allows");
        row("a long type string repeated", root + hex("8481d007") + QByteArray(2000, '!')
                + QByteArray(100, char(0x95)) + char(0x86), "more work than its size allows");
        row("objects nested deeply", nestedObjects(150), "values are nested too deeply");

        std::vector<int> identities(150);
        const int array = 0;
        row("objects referring to each other deeply",
            TypedStreamWriter::archiveRootObject(&identities, TClasses, [&](TypedStreamWriter &w) {
                w.encodeArray(&array, TypedStreamWriter::ArrayClass::NSArray, 150,
                              [&](TypedStreamWriter &a, qsizetype i) {
                    a.encodeObject(&identities[size_t(i)], TClasses, [&, i](TypedStreamWriter &o) {
                        if (i > 0)
                            o.encodeObject(&identities[size_t(i - 1)], TClasses, {});
                    });
                });
            }),
            "objects refer to each other too deeply");

        // Forty objects, each holding the one before inside two levels of
        // arrays: only 41 objects deep, but 120 levels for whoever walks them.
        // Type "[1[1@]]" is S3; O3 holds nil, O(3+k) holds O(2+k).
        QByteArray wrapped = root + hex("84075b315b31405d5d" "8493" "958586");
        for (int k = 1; k < 40; ++k)
            wrapped += hex("95" "8493" "95") + char(k - 108) + char(0x86);
        row("references inside nested arrays", wrapped + char(0x86),
            "objects refer to each other too deeply");

        TypedStreamClassChain longChain;
        for (int i = 0; i < 70; ++i)
            longChain.append({"C" + QByteArray::number(i), 0});
        row("class chain of 70",
            TypedStreamWriter::archiveRootObject(&longChain, longChain, [](TypedStreamWriter &) {}),
            "a class chain longer than 64");
    }

    void refusesMalformedStreams()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, error);
        const TypedStreamReader reader(data);
        QVERIFY(!reader.isValid());
        QVERIFY2(reader.errorString().contains(error), qPrintable(reader.errorString()));
        QVERIFY(reader.topLevelValues().empty());
        QCOMPARE(reader.versionForClassName("T"), std::nullopt);
    }

    void corpusSeedsAndTheirDamage_data()
    {
        QTest::addColumn<QByteArray>("seed");
        const QDir dir(QStringLiteral(PENWICK_TYPEDSTREAM_CORPUS));
        const QStringList names = dir.entryList(QDir::Files, QDir::Name);
        QVERIFY(names.size() >= 10);
        for (const QString &name : names) {
            QTest::newRow(qPrintable(name)) << readBytes(dir.filePath(name));
        }
    }

    void corpusSeedsAndTheirDamage()
    {
        QFETCH(QByteArray, seed);
        const TypedStreamReader reader(seed);
        QVERIFY2(reader.isValid(), qPrintable(reader.errorString()));
        QVERIFY(visitAll(reader) > 0);

        // Every cut inside the root object is noticed.
        constexpr qsizetype headerSize = 16;
        for (qsizetype size = 0; size < seed.size(); ++size) {
            const TypedStreamReader cut(seed.first(size));
            QVERIFY(size == headerSize ? cut.rootObject() == nullptr : !cut.isValid());
        }
        // A flipped bit either leaves a readable stream or is reported.
        for (qsizetype at = 0; at < seed.size(); ++at) {
            for (int bit = 0; bit < 8; ++bit) {
                QByteArray damaged = seed;
                damaged[at] = char(damaged[at] ^ (1 << bit));
                const TypedStreamReader read(damaged);
                if (read.isValid())
                    visitAll(read);
                else
                    QVERIFY(read.errorString().startsWith(u"at byte "));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestTypedStream)
#include "tst_typedstream.moc"
