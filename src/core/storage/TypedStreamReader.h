#pragma once

#include "storage/TypedStreamObject.h"
#include "storage/TypedStreamValue.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <deque>
#include <optional>
#include <vector>


// Decodes a whole archive of the Mac's sequential archiver, in either byte
// order, into a tree of objects and values; the stream describes itself, so
// no knowledge of the archived classes is needed. TypedStreamDecoder then
// walks an object's values the way its initWithCoder: would.
//
// The reader owns every object of the tree and keeps the data (shared, not
// copied): texts and bytes are views into it. Data made with
// QByteArray::fromRawData() must therefore outlive the reader. An object that
// the stream holds once and references again is the same TypedStreamObject at
// every place.
//
// Any bytes are safe to read: malformed input makes isValid() false with a
// description in errorString() and leaves the tree empty.
class TypedStreamReader
{
public:
    // What becomes of a reference to an object that is still being read, one
    // that contains the reference (a child pointing back to its parent).
    // Other programs write such archives; this program's files never hold one.
    enum class OpenReferences {
        // The stream is refused, so the objects form an acyclic graph of
        // bounded depth that may be followed without remembering anything.
        Refuse,
        // The reference is that object, complete once the stream is read.
        // The objects may then form cycles: whoever follows references must
        // remember the objects it has met.
        Allow,
    };

    explicit TypedStreamReader(QByteArray data,
                               OpenReferences openReferences = OpenReferences::Refuse);
    ~TypedStreamReader();
    TypedStreamReader(TypedStreamReader &&) noexcept;
    TypedStreamReader &operator=(TypedStreamReader &&) noexcept;
    TypedStreamReader(const TypedStreamReader &) = delete;
    TypedStreamReader &operator=(const TypedStreamReader &) = delete;

    bool isValid() const { return m_errorString.isEmpty(); }
    const QString &errorString() const { return m_errorString; }

    // Whether a big-endian machine (a PowerPC Mac) wrote the stream.
    bool isBigEndian() const { return m_bigEndian; }
    qint64 systemVersion() const { return m_systemVersion; }

    // The values of all top-level groups. An archive of one root object holds
    // exactly one, an "@".
    const std::vector<TypedStreamValue> &topLevelValues() const { return m_topLevelValues; }
    // The first top-level value when it is a (non-nil) object.
    const TypedStreamObject *rootObject() const;

    // The version recorded with the class of that name, if the stream names it.
    std::optional<int> versionForClassName(QByteArrayView className) const;

private:
    class Parser;

    QByteArray m_data;
    // A deque keeps every object where it was made while more are added, and
    // allocates them in blocks rather than one by one.
    std::deque<TypedStreamObject> m_objects;
    // The objects' values and members, in blocks that never grow past their
    // first capacity, so that every span stays where it points.
    std::vector<std::vector<TypedStreamValue>> m_valueBlocks;
    // Each class chain that objects or values use, built once.
    std::vector<std::vector<TypedStreamClass>> m_classChains;
    std::vector<TypedStreamValue> m_topLevelValues;
    // Few classes appear in any archive: a short list searched without
    // allocating beats a hash keyed by copies of the name.
    std::vector<TypedStreamClass> m_classVersions;
    QString m_errorString;
    bool m_bigEndian = false;
    qint64 m_systemVersion = 0;
};
