#pragma once

#include "storage/TypedStreamValue.h"

#include <QByteArrayView>
#include <QList>
#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

class TypedStreamReader;
struct TypedStreamObject;

// Hands out the values of one object (or of the stream's top level) in
// order, the way an initWithCoder: asks for them. Each call names the type it
// expects and fails when the next value has another; the first failure is
// kept, later calls then answer zero, null or empty, so a decoder can make all
// its calls and check hasError() once. Decoders made with decoderFor() share
// that error with the decoder that made them.
//
// The reader must outlive its decoders. The calls that take one value are
// inline: loading a ledger makes millions of them.
class TypedStreamDecoder
{
public:
    // The top-level values: decodeObject() answers the root object. The
    // reader's own error, if any, is this decoder's error from the start.
    explicit TypedStreamDecoder(const TypedStreamReader &reader);
    explicit TypedStreamDecoder(const TypedStreamReader &&) = delete;

    // A decoder of the object's values. A null object is an error.
    TypedStreamDecoder decoderFor(const TypedStreamObject *object) const;

    qint32 decodeInt() { return qint32(integer('i')); }   // "i"
    qint32 decodeLong() { return qint32(integer('l')); }  // "l"
    char decodeChar() { return char(integer('c')); }      // "c"
    // "f", whether written as a real or as an integer
    float decodeFloat()
    {
        const double *value = takeAs<double>('f');
        return value ? float(*value) : 0.0f;
    }
    // "@": null for nil.
    const TypedStreamObject *decodeObject()
    {
        const auto *object = takeAs<const TypedStreamObject *>('@');
        return object ? *object : nullptr;
    }
    // "@" holding an NSString or NSMutableString; a null QString for nil.
    QString decodeString();
    // "@" holding an NSArray or NSMutableArray, answered as its elements,
    // none of them null; empty for nil.
    QList<const TypedStreamObject *> decodeArray();
    // The next value whatever its type, for classes this decoder has no call
    // for; null when none is left.
    const TypedStreamValue *decodeValue();

    bool atEnd() const { return m_next >= m_values.size(); }
    // The type code of the next value; 0 when none is left.
    char nextType() const { return atEnd() ? '\0' : m_values[m_next].type; }
    // Records an error when values are left, as the Mac does when a class
    // reads less than it wrote; answers !hasError().
    bool finish();

    bool hasError() const { return !m_error->isEmpty(); }
    QString errorString() const { return *m_error; }

    std::optional<int> versionForClassName(QByteArrayView className) const;

private:
    TypedStreamDecoder(const TypedStreamReader &reader, std::span<const TypedStreamValue> values,
                       QByteArrayView context, std::shared_ptr<QString> error);

    // The next value when it has that type. Otherwise null, and the reason
    // is recorded unless an error is kept already.
    const TypedStreamValue *take(char type)
    {
        if (!atEnd() && m_values[m_next].type == type && !hasError())
            return &m_values[m_next++];
        return refuse(type);
    }
    const TypedStreamValue *refuse(char type);
    template<typename T>
    const T *takeAs(char type)
    {
        const TypedStreamValue *value = take(type);
        return value ? std::get_if<T>(&value->data) : nullptr;
    }
    void fail(const QString &message);
    qint64 integer(char type)
    {
        const qint64 *value = takeAs<qint64>(type);
        return value ? *value : 0;
    }

    const TypedStreamReader *m_reader;
    std::span<const TypedStreamValue> m_values;
    std::size_t m_next = 0;
    QByteArrayView m_context;  // whose values, for messages; held by the reader or static
    std::shared_ptr<QString> m_error;
};
