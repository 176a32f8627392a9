#include "storage/TypedStreamReader.h"

#include "storage/TypedStreamFormat.h"
#include "storage/TypedStreamObject.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>
#include <optional>
#include <memory>
#include <variant>

using namespace TypedStreamFormat;

namespace {

// Bounds far beyond any real archive. They keep crafted input from exhausting
// the stack, the memory or the time.
constexpr int MaxNesting = 100;     // objects and compound values inside each other, both
                                    // while reading and along any path of references
constexpr int MaxTypeNesting = 32;  // brackets and braces inside a type string
constexpr int MaxClassChain = 64;   // classes from an object's class to its root class
constexpr qint64 MaxArrayCount = std::numeric_limits<qint32>::max();

// Every value, array element, type-string character and class-chain entry
// costs one unit of work. Real streams spend about one unit per byte; the
// allowance below bounds what a stream of repeated references to a large type
// string or class chain can make the reader do.
constexpr qint64 WorkPerByte = 4;
constexpr qint64 WorkAllowance = 1024;

QString hexByte(quint8 byte)
{
    return QStringLiteral("0x%1").arg(byte, 2, 16, QLatin1Char('0'));
}

} // namespace

class TypedStreamReader::Parser
{
public:
    Parser(TypedStreamReader &reader, QByteArrayView data)
        : m_reader(reader)
        , m_data(data)
        , m_work(WorkPerByte * data.size() + WorkAllowance)
    {
    }

    // Reads the whole stream into the reader; answers what is wrong with it,
    // or an empty text.
    QString run()
    {
        try {
            readHeader();
            while (!atEnd())
                readGroup(m_reader.m_topLevelValues);
            return {};
        } catch (const Failure &failure) {
            return failure.message;
        }
    }

private:
    // Thrown on the first fault and caught in run(): nothing partial escapes.
    struct Failure
    {
        QString message;
    };

    // One type of a type string: a simple code, an array of `count` of
    // members[0], or a struct of the members.
    struct Type
    {
        char code = 0;
        qint64 count = 0;
        std::vector<Type> members;
    };

    // The object table holds objects, classes and C strings.
    struct ObjectEntry
    {
        TypedStreamObject *object = nullptr;
        int height = 0;  // levels of objects and compound values, itself included
        bool complete = false;
    };
    // An object whose values are being read.
    struct OpenObject
    {
        int nesting = 0;  // the nesting level of its values
        int height = 0;   // the most levels found below it so far
    };
    struct ClassEntry
    {
        TypedStreamClass cls;
        qsizetype superclass = -1;
        int depth = 1;                // length of the chain from here to the root
        TypedStreamClassChain chain;  // built when an object first uses it
    };
    using Entry = std::variant<ObjectEntry, ClassEntry, QByteArray>;

    class Nested
    {
    public:
        explicit Nested(Parser &parser)
            : m_parser(parser)
        {
            if (m_parser.m_nesting >= MaxNesting)
                m_parser.fail(QStringLiteral("values are nested too deeply"));
            ++m_parser.m_nesting;
        }
        ~Nested() { --m_parser.m_nesting; }
        Nested(const Nested &) = delete;
        Nested &operator=(const Nested &) = delete;

    private:
        Parser &m_parser;
    };

    [[noreturn]] void fail(const QString &message) const
    {
        throw Failure{QStringLiteral("at byte %1: %2").arg(m_pos).arg(message)};
    }

    void spend(qint64 units)
    {
        if (units > m_work)
            fail(QStringLiteral("the stream asks for more work than its size allows"));
        m_work -= units;
    }

    // ---- bytes

    bool atEnd() const { return m_pos >= m_data.size(); }
    qsizetype remaining() const { return m_data.size() - m_pos; }

    quint8 peekByte() const
    {
        if (atEnd())
            fail(QStringLiteral("the data ends early"));
        return quint8(m_data[m_pos]);
    }

    quint8 readByte()
    {
        const quint8 byte = peekByte();
        ++m_pos;
        return byte;
    }

    QByteArray readBytes(qint64 count)
    {
        if (count > remaining())
            fail(QStringLiteral("%1 bytes announced, %2 left").arg(count).arg(remaining()));
        const QByteArray bytes = m_data.sliced(m_pos, qsizetype(count)).toByteArray();
        m_pos += qsizetype(count);
        return bytes;
    }

    template<typename T>
    T readFixed()
    {
        if (qsizetype(sizeof(T)) > remaining())
            fail(QStringLiteral("the data ends early"));
        T value;
        std::memcpy(&value, m_data.data() + m_pos, sizeof value);
        m_pos += sizeof value;
        return m_reader.m_bigEndian ? qFromBigEndian(value) : qFromLittleEndian(value);
    }

    // ---- integers, reals and strings

    qint64 readInteger() { return readInteger(readByte()); }

    qint64 readInteger(quint8 head)
    {
        switch (head) {
        case Int16Tag:
            return readFixed<qint16>();
        case Int32Tag:
            return readFixed<qint32>();
        case Int64Tag:
            return readFixed<qint64>();
        case RealTag:
        case NewTag:
        case NilTag:
        case EndOfObjectTag:
            fail(QStringLiteral("tag %1 where an integer belongs").arg(hexByte(head)));
        default:
            if (head >= FirstReservedTag && head <= LastReservedTag)
                fail(QStringLiteral("reserved tag %1").arg(hexByte(head)));
            return qint8(head);
        }
    }

    double readReal(char code)
    {
        const quint8 head = readByte();
        if (head == RealTag) {
            return code == 'f' ? double(std::bit_cast<float>(readFixed<quint32>()))
                               : std::bit_cast<double>(readFixed<quint64>());
        }
        // A real that an integer holds exactly was written as that integer.
        const qint64 value = readInteger(head);
        return code == 'f' ? double(float(value)) : double(value);
    }

    qint64 readLength()
    {
        const qint64 length = readInteger();
        if (length < 0 || length > remaining())
            fail(QStringLiteral("length %1 does not fit the data").arg(length));
        return length;
    }

    // `what` is named only when the label is wrong, so the common path builds no text.
    qsizetype readLabel(quint8 head, qsizetype tableSize, const char *what)
    {
        const qint64 label = readInteger(head);
        if (label < -LabelBias || label >= qint64(tableSize) - LabelBias)
            fail(QStringLiteral("label %1 refers to no earlier %2").arg(label).arg(QLatin1StringView(what)));
        return qsizetype(indexForLabel(label));
    }

    // Answers the index in the shared-string table, or NilString for nil. (A
    // plain index rather than an optional: this runs for every value, and
    // an optional returned through memory costs a store-forwarding stall.)
    static constexpr qsizetype NilString = -1;
    qsizetype readSharedString()
    {
        const quint8 head = readByte();
        if (head == NilTag)
            return NilString;
        if (head == NewTag) {
            m_sharedStrings.push_back(readBytes(readLength()));
            return qsizetype(m_sharedStrings.size()) - 1;
        }
        return readLabel(head, qsizetype(m_sharedStrings.size()), "shared string");
    }

    std::optional<QByteArray> readCString()
    {
        const quint8 head = readByte();
        if (head == NilTag)
            return std::nullopt;
        if (head == NewTag) {
            const qsizetype text = readSharedString();
            if (text == NilString)
                fail(QStringLiteral("a C string without text"));
            m_objectTable.emplace_back(m_sharedStrings[text]);
            return m_sharedStrings[text];
        }
        const qsizetype index =
            readLabel(head, qsizetype(m_objectTable.size()), "C string");
        const auto *text = std::get_if<QByteArray>(&m_objectTable[index]);
        if (!text)
            fail(QStringLiteral("a C string label refers to an object or class"));
        return *text;
    }

    // ---- type strings

    const std::vector<Type> &typesOf(qsizetype sharedString)
    {
        // Indexed by shared string, each parsed once; the types live on the
        // heap, so references stay valid while nested groups add more.
        if (m_types.size() <= std::size_t(sharedString))
            m_types.resize(std::size_t(sharedString) + 1);
        std::unique_ptr<std::vector<Type>> &known = m_types[std::size_t(sharedString)];
        if (known)
            return *known;
        const QByteArrayView text = m_sharedStrings[sharedString];
        spend(text.size());
        if (text.isEmpty())
            fail(QStringLiteral("an empty type string"));
        auto types = std::make_unique<std::vector<Type>>();
        for (qsizetype pos = 0; pos < text.size();)
            types->push_back(parseType(text, pos, 0));
        known = std::move(types);
        return *known;
    }

    Type parseType(QByteArrayView text, qsizetype &pos, int nesting)
    {
        if (nesting > MaxTypeNesting)
            fail(QStringLiteral("a type string nested too deeply"));
        const char code = text[pos++];
        switch (code) {
        case 'c': case 'C': case 's': case 'S': case 'i': case 'I': case 'l': case 'L':
        case 'q': case 'Q': case 'f': case 'd': case '@': case '#': case '*': case '+':
        case '%': case ':': case '!':
            return Type{code, 0, {}};
        case '[': {
            Type array{code, 0, {}};
            const qsizetype digits = pos;
            for (; pos < text.size() && text[pos] >= '0' && text[pos] <= '9'; ++pos) {
                array.count = array.count * 10 + (text[pos] - '0');
                if (array.count > MaxArrayCount)
                    fail(QStringLiteral("an array type of more than %1 elements")
                             .arg(MaxArrayCount));
            }
            if (pos == digits || pos == text.size())
                fail(QStringLiteral("an array type without count or element type"));
            array.members.push_back(parseType(text, pos, nesting + 1));
            if (pos == text.size() || text[pos] != ']')
                fail(QStringLiteral("an unterminated array type"));
            ++pos;
            return array;
        }
        case '{': {
            // "{name=members}"; the name is optional.
            qsizetype nameEnd = pos;
            while (nameEnd < text.size() && !QByteArrayView("={}[]()").contains(text[nameEnd]))
                ++nameEnd;
            if (nameEnd < text.size() && text[nameEnd] == '=')
                pos = nameEnd + 1;
            Type structure{code, 0, {}};
            while (pos == text.size() || text[pos] != '}') {
                if (pos == text.size())
                    fail(QStringLiteral("an unterminated struct type"));
                structure.members.push_back(parseType(text, pos, nesting + 1));
            }
            ++pos;
            return structure;
        }
        case '(':
            fail(QStringLiteral("union values are not supported"));
        default:
            fail(QStringLiteral("unknown type code %1").arg(hexByte(quint8(code))));
        }
    }

    // ---- groups and values

    void readHeader()
    {
        const quint8 version = readByte();
        if (version == OldStreamerVersion)
            fail(QStringLiteral("streamer version 3 (an older archive form) is not supported"));
        if (version != StreamerVersion)
            fail(QStringLiteral("not a typed stream (streamer version %1)").arg(version));
        if (readByte() != SignatureLength)
            fail(QStringLiteral("not a typed stream (signature length)"));
        const QByteArray signature = readBytes(SignatureLength);
        if (signature == BigEndianSignature)
            m_reader.m_bigEndian = true;
        else if (signature != LittleEndianSignature)
            fail(QStringLiteral("not a typed stream (signature)"));
        m_reader.m_systemVersion = readInteger();
    }

    void readGroup(std::vector<TypedStreamValue> &values)
    {
        spend(1);
        const qsizetype typeString = readSharedString();
        if (typeString == NilString)
            fail(QStringLiteral("a group without a type string"));
        for (const Type &type : typesOf(typeString))
            readValue(type, values);
    }

    void readValue(const Type &type, std::vector<TypedStreamValue> &values)
    {
        spend(1);
        const auto pushText = [&](const std::optional<QByteArray> &bytes) {
            if (bytes)
                values.push_back({type.code, *bytes});
            else
                values.push_back({type.code, std::monostate{}});
        };
        switch (type.code) {
        case 'c':
            values.push_back({type.code, qint64(qint8(readByte()))});
            return;
        case 'C':
            values.push_back({type.code, qint64(readByte())});
            return;
        // Unsigned values were written as the signed value of the same bits.
        case 's':
            values.push_back({type.code, qint64(qint16(readInteger()))});
            return;
        case 'S':
            values.push_back({type.code, qint64(quint16(readInteger()))});
            return;
        case 'i':
        case 'l':
            values.push_back({type.code, qint64(qint32(readInteger()))});
            return;
        case 'I':
        case 'L':
            values.push_back({type.code, qint64(quint32(readInteger()))});
            return;
        case 'q':
        case 'Q':
            values.push_back({type.code, readInteger()});
            return;
        case 'f':
        case 'd':
            values.push_back({type.code, readReal(type.code)});
            return;
        case '@':
            if (const TypedStreamObject *object = readObject())
                values.push_back({type.code, object});
            else
                values.push_back({type.code, std::monostate{}});
            return;
        case '#':
            if (const qsizetype cls = readClass(); cls >= 0)
                values.push_back({type.code, chainOf(cls)});
            else
                values.push_back({type.code, std::monostate{}});
            return;
        case '*':
            pushText(readCString());
            return;
        case '+':
            values.push_back({type.code, readBytes(readLength())});
            return;
        case '%':
        case ':':
            if (const qsizetype shared = readSharedString(); shared != NilString)
                pushText(m_sharedStrings[shared]);
            else
                pushText(std::nullopt);
            return;
        case '!':
            return;  // an ignored field: nothing was written
        case '[': {
            const Type &element = type.members.front();
            if (element.code == 'c' || element.code == 'C') {
                values.push_back({type.code, readBytes(type.count)});
                return;
            }
            const Nested nested(*this);
            noteLevels(0);
            TypedStreamValue::Members elements;
            for (qint64 i = 0; i < type.count; ++i)
                readValue(element, elements);
            values.push_back({type.code, std::move(elements)});
            return;
        }
        case '{': {
            const Nested nested(*this);
            noteLevels(0);
            TypedStreamValue::Members fields;
            for (const Type &field : type.members)
                readValue(field, fields);
            values.push_back({type.code, std::move(fields)});
            return;
        }
        }
    }

    // An object in an "@" position: nil (null), a new object or a label.
    const TypedStreamObject *readObject()
    {
        const quint8 head = readByte();
        if (head == NilTag)
            return nullptr;
        qsizetype index = qsizetype(m_objectTable.size());
        if (head == NewTag)
            readNewObject();
        else
            index = readLabel(head, index, "object");
        const auto *entry = std::get_if<ObjectEntry>(&m_objectTable[index]);
        if (!entry)
            fail(QStringLiteral("an object label refers to a class or C string"));
        if (!entry->complete)
            fail(QStringLiteral("an object refers to an object that contains it"));
        // A reference puts the whole object below this point: a consumer that
        // follows it recurses as deep as if it were written here.
        noteLevels(entry->height);
        return entry->object;
    }

    void readNewObject()
    {
        const Nested nested(*this);
        // The object takes its table index before its classes take theirs.
        const qsizetype index = qsizetype(m_objectTable.size());
        TypedStreamObject *object = &m_reader.m_objects.emplace_back();
        m_objectTable.emplace_back(ObjectEntry{object, 0, false});
        m_openObjects.push_back({m_nesting, 0});

        const qsizetype cls = readClass();
        if (cls < 0)
            fail(QStringLiteral("an object without a class"));
        object->classChain = chainOf(cls);
        // The values gather in a buffer kept for this depth, then move into
        // the object in one allocation of the right size.
        if (m_valueBuffers.size() <= std::size_t(m_nesting))
            m_valueBuffers.resize(std::size_t(m_nesting) + 1);
        std::vector<TypedStreamValue> &buffer = m_valueBuffers[std::size_t(m_nesting)];
        buffer.clear();
        while (peekByte() != EndOfObjectTag)
            readGroup(buffer);
        ++m_pos;
        object->values = keep(buffer);

        const int height = m_openObjects.back().height + 1;
        m_openObjects.pop_back();
        if (height > MaxNesting)
            fail(QStringLiteral("objects refer to each other too deeply"));
        ObjectEntry &entry = std::get<ObjectEntry>(m_objectTable[index]);
        entry.height = height;
        entry.complete = true;
    }

    // Records that `levels` more levels start at the current nesting, inside
    // the object being read.
    void noteLevels(int levels)
    {
        if (m_openObjects.empty())
            return;
        OpenObject &open = m_openObjects.back();
        open.height = std::max(open.height, m_nesting - open.nesting + levels);
    }

    // Reads a class chain up to nil or to a class read before; answers the
    // table index of its first class, or -1 for nil.
    qsizetype readClass()
    {
        const qsizetype chainStart = qsizetype(m_objectTable.size());
        qsizetype superclass = -1;
        for (;;) {
            const quint8 head = readByte();
            if (head == NilTag)
                break;
            if (head != NewTag) {
                superclass = readLabel(head, chainStart, "class");
                if (!std::holds_alternative<ClassEntry>(m_objectTable[superclass]))
                    fail(QStringLiteral("a class label refers to an object or C string"));
                break;
            }
            const qsizetype name = readSharedString();
            if (name == NilString)
                fail(QStringLiteral("a class without a name"));
            const qint64 version = readInteger();
            if (version < std::numeric_limits<int>::min()
                || version > std::numeric_limits<int>::max())
                fail(QStringLiteral("class version %1 out of range").arg(version));
            if (qsizetype(m_objectTable.size()) - chainStart >= MaxClassChain)
                fail(QStringLiteral("a class chain longer than %1").arg(MaxClassChain));
            const TypedStreamClass cls{m_sharedStrings[name], int(version)};
            recordVersion(cls);
            m_objectTable.emplace_back(ClassEntry{cls, -1, 1, {}});
        }

        // The new classes sit side by side in the table, each the superclass
        // of the one before.
        const qsizetype chainEnd = qsizetype(m_objectTable.size());
        const int inherited =
            superclass < 0 ? 0 : std::get<ClassEntry>(m_objectTable[superclass]).depth;
        if (inherited + (chainEnd - chainStart) > MaxClassChain)
            fail(QStringLiteral("a class chain longer than %1").arg(MaxClassChain));
        for (qsizetype i = chainStart; i < chainEnd; ++i) {
            ClassEntry &entry = std::get<ClassEntry>(m_objectTable[i]);
            entry.superclass = i + 1 < chainEnd ? i + 1 : superclass;
            entry.depth = int(chainEnd - i) + inherited;
        }
        return chainEnd > chainStart ? chainStart : superclass;
    }

    // Moves the values into the reader's blocks and answers where they are.
    std::span<const TypedStreamValue> keep(std::vector<TypedStreamValue> &values)
    {
        constexpr std::size_t BlockSize = 4096;
        if (values.empty())
            return {};
        auto &blocks = m_reader.m_valueBlocks;
        if (blocks.empty() || blocks.back().capacity() - blocks.back().size() < values.size()) {
            blocks.emplace_back().reserve(std::max(BlockSize, values.size()));
        }
        std::vector<TypedStreamValue> &block = blocks.back();
        const std::size_t start = block.size();
        block.insert(block.end(), std::make_move_iterator(values.begin()),
                     std::make_move_iterator(values.end()));
        return {block.data() + start, values.size()};
    }

    // The version the latest record of a class name gave it.
    void recordVersion(const TypedStreamClass &cls)
    {
        auto &known = m_reader.m_classVersions;
        const auto same = std::find_if(known.begin(), known.end(),
                                       [&](const TypedStreamClass &k) { return k.name == cls.name; });
        if (same != known.end())
            same->version = cls.version;
        else
            known.push_back(cls);
    }

    TypedStreamClassChain chainOf(qsizetype classIndex)
    {
        ClassEntry &entry = std::get<ClassEntry>(m_objectTable[classIndex]);
        if (entry.chain.isEmpty()) {
            spend(entry.depth);
            entry.chain.reserve(entry.depth);
            for (qsizetype i = classIndex; i >= 0;) {
                const ClassEntry &link = std::get<ClassEntry>(m_objectTable[i]);
                entry.chain.append(link.cls);
                i = link.superclass;
            }
        }
        return entry.chain;
    }

    TypedStreamReader &m_reader;
    const QByteArrayView m_data;
    qsizetype m_pos = 0;
    qint64 m_work;
    int m_nesting = 0;
    std::vector<QByteArray> m_sharedStrings;
    std::vector<std::unique_ptr<std::vector<Type>>> m_types;  // parsed type strings
    std::vector<Entry> m_objectTable;
    std::vector<OpenObject> m_openObjects;
    // One per nesting level; a deque, so that a deeper level added while an
    // outer object is being read leaves the outer buffer where it is.
    std::deque<std::vector<TypedStreamValue>> m_valueBuffers;
};

TypedStreamReader::TypedStreamReader(QByteArrayView data)
{
    m_errorString = Parser(*this, data).run();
    if (!m_errorString.isEmpty()) {
        m_objects.clear();
        m_valueBlocks.clear();
        m_topLevelValues.clear();
        m_classVersions.clear();
    }
}

TypedStreamReader::~TypedStreamReader() = default;
TypedStreamReader::TypedStreamReader(TypedStreamReader &&) noexcept = default;
TypedStreamReader &TypedStreamReader::operator=(TypedStreamReader &&) noexcept = default;

const TypedStreamObject *TypedStreamReader::rootObject() const
{
    if (m_topLevelValues.empty())
        return nullptr;
    const auto *object = std::get_if<const TypedStreamObject *>(&m_topLevelValues.front().data);
    return object ? *object : nullptr;
}

std::optional<int> TypedStreamReader::versionForClassName(QByteArrayView className) const
{
    for (const TypedStreamClass &known : m_classVersions) {
        if (known.name == className)
            return known.version;
    }
    return std::nullopt;
}
