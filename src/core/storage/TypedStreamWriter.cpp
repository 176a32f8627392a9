#include "storage/TypedStreamWriter.h"

#include "storage/TypedStreamFormat.h"

#include <QString>
#include <QtEndian>

#include <limits>

using namespace TypedStreamFormat;

namespace {

template<typename T>
void appendLittleEndian(QByteArray &data, T value)
{
    const T stored = qToLittleEndian(value);
    data.append(reinterpret_cast<const char *>(&stored), sizeof stored);
}

const TypedStreamClassChain &classChain(TypedStreamWriter::ArrayClass arrayClass)
{
    static const TypedStreamClassChain array{{"NSArray", 0}, {"NSObject", 0}};
    static const TypedStreamClassChain mutableArray{
        {"NSMutableArray", 0}, {"NSArray", 0}, {"NSObject", 0}};
    return arrayClass == TypedStreamWriter::ArrayClass::NSArray ? array : mutableArray;
}

} // namespace

TypedStreamWriter::TypedStreamWriter()
{
    m_data.append(char(StreamerVersion));
    writeInteger(SignatureLength);
    m_data.append(LittleEndianSignature, SignatureLength);
    writeInteger(SystemVersion);
}

QByteArray TypedStreamWriter::archiveRootObject(const void *identity,
                                                const TypedStreamClassChain &chain,
                                                const EncodeFunction &encode)
{
    TypedStreamWriter writer;
    writer.encodeObject(identity, chain, encode);
    return writer.m_data;
}

void TypedStreamWriter::encodeInt(qint32 value)
{
    writeSharedString(QByteArrayLiteral("i"));
    writeInteger(value);
}

void TypedStreamWriter::encodeLong(qint32 value)
{
    writeSharedString(QByteArrayLiteral("l"));
    writeInteger(value);
}

void TypedStreamWriter::encodeChar(char value)
{
    writeSharedString(QByteArrayLiteral("c"));
    m_data.append(value);
}

void TypedStreamWriter::encodeFloat(float value)
{
    encodeFloats({value});
}

void TypedStreamWriter::encodeFloats(std::initializer_list<float> values)
{
    if (values.size() == 0)
        return;
    writeSharedString(QByteArray(qsizetype(values.size()), 'f'));
    for (const float value : values)
        writeReal(value);
}

void TypedStreamWriter::encodeObject(const void *identity, const TypedStreamClassChain &chain,
                                     const EncodeFunction &encode)
{
    writeSharedString(QByteArrayLiteral("@"));
    if (!identity) {
        m_data.append(char(NilTag));
        return;
    }
    if (const auto known = m_objects.constFind(identity); known != m_objects.cend()) {
        writeInteger(labelForIndex(*known));
        return;
    }
    m_objects.insert(identity, m_objectTableSize);
    writeNewObject(chain, encode);
}

void TypedStreamWriter::encodeNil()
{
    encodeObject(nullptr, {}, {});
}

void TypedStreamWriter::encodeString(const QString &text)
{
    static const TypedStreamClassChain chain{{"NSString", 1}, {"NSObject", 0}};
    writeSharedString(QByteArrayLiteral("@"));
    writeNewObject(chain, [&text](TypedStreamWriter &writer) {
        const QByteArray utf8 = text.toUtf8();
        writer.writeSharedString(QByteArrayLiteral("+"));
        writer.writeInteger(utf8.size());
        writer.m_data.append(utf8);
    });
}

void TypedStreamWriter::encodeArray(const void *identity, ArrayClass arrayClass, qsizetype count,
                                    const EncodeElementFunction &encodeElement)
{
    encodeObject(identity, classChain(arrayClass), [&](TypedStreamWriter &writer) {
        writer.encodeInt(qint32(count));
        for (qsizetype i = 0; i < count; ++i)
            encodeElement(writer, i);
    });
}

void TypedStreamWriter::writeSharedString(const QByteArray &text)
{
    if (const auto known = m_sharedStrings.constFind(text); known != m_sharedStrings.cend()) {
        writeInteger(labelForIndex(*known));
        return;
    }
    m_sharedStrings.insert(text, m_sharedStrings.size());
    m_data.append(char(NewTag));
    writeInteger(text.size());
    m_data.append(text);
}

void TypedStreamWriter::writeInteger(qint64 value)
{
    if (value >= SmallestByteInteger && value <= LargestByteInteger) {
        m_data.append(char(value));
    } else if (value >= SmallestInt16 && value <= LargestInt16) {
        m_data.append(char(Int16Tag));
        appendLittleEndian(m_data, qint16(value));
    } else if (value >= std::numeric_limits<qint32>::min()
               && value <= std::numeric_limits<qint32>::max()) {
        m_data.append(char(Int32Tag));
        appendLittleEndian(m_data, qint32(value));
    } else {
        m_data.append(char(Int64Tag));
        appendLittleEndian(m_data, value);
    }
}

void TypedStreamWriter::writeReal(float value)
{
    // A real that an int holds exactly is written as that int; the Mac tests
    // this with a conversion to int, valid only strictly inside its range.
    // Negative zero therefore loses its sign, as it does on the Mac.
    const double wide = value;
    if (wide >= -2147483646.0 && wide < 2147483646.0 && qint32(value) == wide) {
        writeInteger(qint32(value));
        return;
    }
    m_data.append(char(RealTag));
    appendLittleEndian(m_data, value);
}

void TypedStreamWriter::writeNewObject(const TypedStreamClassChain &chain,
                                       const EncodeFunction &encode)
{
    // The object takes its table index before its classes take theirs.
    m_data.append(char(NewTag));
    ++m_objectTableSize;
    writeClassChain(chain);
    encode(*this);
    m_data.append(char(EndOfObjectTag));
}

void TypedStreamWriter::writeClassChain(const TypedStreamClassChain &chain)
{
    for (const TypedStreamClass &cls : chain) {
        if (const auto known = m_classes.constFind(cls.name); known != m_classes.cend()) {
            // The class written before carries its superclasses with it.
            writeInteger(labelForIndex(*known));
            return;
        }
        m_data.append(char(NewTag));
        writeSharedString(cls.name);
        writeInteger(cls.version);
        m_classes.insert(cls.name, m_objectTableSize++);
    }
    m_data.append(char(NilTag));
}
