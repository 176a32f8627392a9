#include "storage/TypedStreamDecoder.h"

#include "storage/TypedStreamObject.h"
#include "storage/TypedStreamReader.h"

namespace {

QString typeCode(char type)
{
    return QString(QLatin1Char(type));
}

} // namespace

TypedStreamDecoder::TypedStreamDecoder(const TypedStreamReader &reader)
    : TypedStreamDecoder(reader, reader.topLevelValues(), "top level",
                         std::make_shared<QString>(reader.errorString()))
{
}

TypedStreamDecoder::TypedStreamDecoder(const TypedStreamReader &reader,
                                       std::span<const TypedStreamValue> values,
                                       QByteArrayView context, std::shared_ptr<QString> error)
    : m_reader(&reader)
    , m_values(values)
    , m_context(context)
    , m_error(std::move(error))
{
}

TypedStreamDecoder TypedStreamDecoder::decoderFor(const TypedStreamObject *object) const
{
    TypedStreamDecoder decoder(*m_reader, object ? object->values : std::span<const TypedStreamValue>(),
                               object ? QByteArrayView(object->className()) : "nil", m_error);
    if (!object)
        decoder.fail(QStringLiteral("there is no object to decode"));
    return decoder;
}

const TypedStreamValue *TypedStreamDecoder::refuse(char type)
{
    if (hasError())
        return nullptr;
    if (atEnd()) {
        fail(QStringLiteral("a value of type '%1' was asked for, but no value is left")
                 .arg(typeCode(type)));
    } else {
        fail(QStringLiteral("value %1 has type '%2', not '%3'")
                 .arg(m_next + 1)
                 .arg(typeCode(m_values[m_next].type), typeCode(type)));
    }
    return nullptr;
}

void TypedStreamDecoder::fail(const QString &message)
{
    if (!hasError())
        *m_error = QStringLiteral("%1: %2").arg(QString::fromUtf8(m_context), message);
}

QString TypedStreamDecoder::decodeString()
{
    const TypedStreamObject *object = decodeObject();
    if (!object)
        return {};
    if (!object->inherits("NSString")) {
        fail(QStringLiteral("expected a string, found an object of class %1")
                 .arg(QString::fromUtf8(object->className())));
        return {};
    }
    // A string holds its bytes and nothing else; only a string that does not
    // needs a decoder, to say what is wrong with it.
    const auto *bytes = object->values.size() == 1 && object->values.front().type == '+'
        ? std::get_if<QByteArrayView>(&object->values.front().data)
        : nullptr;
    if (bytes)
        return QString::fromUtf8(*bytes);
    TypedStreamDecoder contents = decoderFor(object);
    const QByteArrayView *utf8 = contents.takeAs<QByteArrayView>('+');
    if (!utf8 || !contents.finish())
        return {};
    return QString::fromUtf8(*utf8);
}

QList<const TypedStreamObject *> TypedStreamDecoder::decodeArray()
{
    const TypedStreamObject *object = decodeObject();
    if (!object)
        return {};
    if (!object->inherits("NSArray")) {
        fail(QStringLiteral("expected an array, found an object of class %1")
                 .arg(QString::fromUtf8(object->className())));
        return {};
    }
    TypedStreamDecoder contents = decoderFor(object);
    const qint32 count = contents.decodeInt();
    if (count < 0)
        contents.fail(QStringLiteral("a negative count %1").arg(count));
    QList<const TypedStreamObject *> elements;
    // The count is not trusted for an allocation: each element must be there.
    for (qint32 i = 0; i < count && !contents.hasError(); ++i) {
        const TypedStreamObject *element = contents.decodeObject();
        if (!element && !contents.hasError())
            contents.fail(QStringLiteral("element %1 is nil").arg(i));
        elements.append(element);
    }
    if (!contents.finish())
        return {};
    return elements;
}

const TypedStreamValue *TypedStreamDecoder::decodeValue()
{
    const char type = nextType();
    return type ? take(type) : nullptr;
}

bool TypedStreamDecoder::finish()
{
    if (!hasError() && !atEnd())
        fail(QStringLiteral("%1 values left unread").arg(m_values.size() - m_next));
    return !hasError();
}

std::optional<int> TypedStreamDecoder::versionForClassName(QByteArrayView className) const
{
    return m_reader->versionForClassName(className);
}
