#pragma once

#include "storage/TypedStreamClass.h"

#include <QByteArray>
#include <QHash>

#include <functional>
#include <initializer_list>

class QString;

// Writes an archive in the Mac's sequential (non-keyed) archiver form, byte
// for byte as the Mac would, little-endian.
//
// archiveRootObject() writes the header and the root object; every other call
// belongs inside the encode function of an object and writes one group, as
// one coder call of a class's encodeWithCoder: does on the Mac. The grouping is
// part of the bytes (two "i" groups differ from one "ii" group) and the Mac
// checks it when reading, so an encoder makes one call per group the class's
// archive form has.
//
// Objects are identified by an opaque key, normally their address: an object
// written a second time becomes a reference to the first copy, and a null key
// writes nil.
class TypedStreamWriter
{
public:
    using EncodeFunction = std::function<void(TypedStreamWriter &writer)>;
    using EncodeElementFunction = std::function<void(TypedStreamWriter &writer, qsizetype index)>;

    enum class ArrayClass { NSArray, NSMutableArray };

    // The whole archive of one root object. `chain` is the root's class chain,
    // most derived class first and root class (NSObject) last; `encode` writes
    // the root's values.
    static QByteArray archiveRootObject(const void *identity, const TypedStreamClassChain &chain,
                                        const EncodeFunction &encode);

    void encodeInt(qint32 value);   // "i"
    void encodeLong(qint32 value);  // "l", 32 bits as on the Macs of the time
    void encodeChar(char value);    // "c"
    void encodeFloat(float value);  // "f"
    // One group of several floats, "ff...", as encodeValuesOfObjCTypes: writes
    // them (colour components). An empty list writes nothing.
    void encodeFloats(std::initializer_list<float> values);

    // An "@" group: nil for a null identity, a reference when the identity was
    // written before, else the object itself, with its class chain (classes
    // written before become a reference that ends the chain) and the values
    // that `encode` writes.
    void encodeObject(const void *identity, const TypedStreamClassChain &chain,
                      const EncodeFunction &encode);
    void encodeNil();
    // A new NSString object holding the UTF-8 text. Strings are values here:
    // each call writes a copy.
    void encodeString(const QString &text);
    // An array object: its count, then the `count` elements, each written by
    // one call of `encodeElement` that makes one "@" group (encodeObject,
    // encodeString or encodeNil).
    void encodeArray(const void *identity, ArrayClass arrayClass, qsizetype count,
                     const EncodeElementFunction &encodeElement);

private:
    TypedStreamWriter();

    void writeSharedString(const QByteArray &text);
    void writeInteger(qint64 value);
    void writeReal(float value);
    void writeNewObject(const TypedStreamClassChain &chain, const EncodeFunction &encode);
    void writeClassChain(const TypedStreamClassChain &chain);

    QByteArray m_data;
    QHash<QByteArray, qint64> m_sharedStrings;  // text -> table index
    QHash<const void *, qint64> m_objects;      // identity -> table index
    QHash<QByteArray, qint64> m_classes;        // class name -> table index
    qint64 m_objectTableSize = 0;               // objects and classes together
};
