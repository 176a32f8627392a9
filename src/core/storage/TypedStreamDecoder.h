#pragma once

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
struct TypedStreamValue;

// Hands out the values of one object (or of the stream's top level) in
// order, the way an initWithCoder: asks for them. Each call names the type it
// expects and fails when the next value has another; the first failure is
// kept, later calls then answer zero, null or empty, so a decoder can make all
// its calls and check hasError() once. Decoders made with decoderFor() share
// that error with the decoder that made them.
//
// The reader must outlive its decoders.
class TypedStreamDecoder
{
public:
    // The top-level values: decodeObject() answers the root object. The
    // reader's own error, if any, is this decoder's error from the start.
    explicit TypedStreamDecoder(const TypedStreamReader &reader);
    explicit TypedStreamDecoder(const TypedStreamReader &&) = delete;

    // A decoder of the object's values. A null object is an error.
    TypedStreamDecoder decoderFor(const TypedStreamObject *object) const;

    qint32 decodeInt();    // "i"
    qint32 decodeLong();   // "l"
    char decodeChar();     // "c"
    float decodeFloat();   // "f", whether written as a real or as an integer
    // "@": null for nil.
    const TypedStreamObject *decodeObject();
    // "@" holding an NSString or NSMutableString; a null QString for nil.
    QString decodeString();
    // "@" holding an NSArray or NSMutableArray, answered as its elements,
    // none of them null; empty for nil.
    QList<const TypedStreamObject *> decodeArray();
    // The next value whatever its type, for classes this decoder has no call
    // for; null when none is left.
    const TypedStreamValue *decodeValue();

    bool atEnd() const;
    // The type code of the next value; 0 when none is left.
    char nextType() const;
    // Records an error when values are left, as the Mac does when a class
    // reads less than it wrote; answers !hasError().
    bool finish();

    bool hasError() const { return !m_error->isEmpty(); }
    QString errorString() const { return *m_error; }

    std::optional<int> versionForClassName(QByteArrayView className) const;

private:
    TypedStreamDecoder(const TypedStreamReader &reader, std::span<const TypedStreamValue> values,
                       QByteArrayView context, std::shared_ptr<QString> error);

    const TypedStreamValue *take(char type);
    template<typename T>
    const T *takeAs(char type);
    void fail(const QString &message);

    const TypedStreamReader *m_reader;
    std::span<const TypedStreamValue> m_values;
    std::size_t m_next = 0;
    QByteArrayView m_context;  // whose values, for messages; held by the reader or static
    std::shared_ptr<QString> m_error;
};
