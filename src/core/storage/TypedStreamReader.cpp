#include "storage/TypedStreamReader.h"

#include "storage/TypedStreamFormat.h"
#include "storage/TypedStreamObject.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>
#include <type_traits>
#include <variant>

using namespace TypedStreamFormat;

// Values own nothing, so the reader keeps and drops them wholesale.
static_assert(std::is_trivially_copyable_v<TypedStreamValue>);
static_assert(std::is_trivially_destructible_v<TypedStreamObject>);

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

// Values per block of the reader's value store: small enough to come from the
// heap rather than from the system page by page.
constexpr std::size_t ValueBlockSize = 1024;

// The values gathered while an object or a compound value is read. Adding
// one stays inline; only making room goes out of line.
class ValueBuffer
{
public:
    void clear() { m_size = 0; }
    std::span<const TypedStreamValue> values() const { return {m_values.get(), m_size}; }

    // Builds the value where it is kept. One built on the stack and copied in
    // would be read back whole before the stores of its parts had landed:
    // that stall cost more than everything else of adding a value.
    template<typename T>
    void append(char type, T data)
    {
        if (m_size == m_capacity)
            grow();
        TypedStreamValue &value = m_values[m_size++];
        value.type = type;
        value.data = data;
    }

private:
    Q_NEVER_INLINE void grow()
    {
        const std::size_t capacity = std::max<std::size_t>(16, 2 * m_capacity);
        auto values = std::make_unique<TypedStreamValue[]>(capacity);
        std::copy_n(m_values.get(), m_size, values.get());
        m_values = std::move(values);
        m_capacity = capacity;
    }

    std::unique_ptr<TypedStreamValue[]> m_values;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

// A tag or type code as a message shows it.
struct HexByte
{
    quint8 byte;
};

qint64 shown(qint64 number)
{
    return number;
}

QLatin1StringView shown(const char *text)
{
    return QLatin1StringView(text);
}

QString shown(HexByte hex)
{
    return QStringLiteral("0x%1").arg(hex.byte, 2, 16, QLatin1Char('0'));
}

} // namespace

class TypedStreamReader::Parser
{
public:
    Parser(TypedStreamReader &reader, OpenReferences openReferences)
        : m_reader(reader)
        , m_data(reader.m_data)
        , m_work(WorkPerByte * m_data.size() + WorkAllowance)
        , m_allowOpenReferences(openReferences == OpenReferences::Allow)
    {
    }

    // Reads the whole stream into the reader; answers what is wrong with it,
    // or an empty text.
    QString run()
    {
        try {
            readHeader();
            // Top-level objects are read one level deeper: this buffer is free.
            ValueBuffer &topLevel = m_valueBuffers.front();
            while (!atEnd())
                readGroup(topLevel);
            m_reader.m_topLevelValues.assign(topLevel.values().begin(), topLevel.values().end());
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
    struct ClassLabel
    {
        qsizetype index = 0;  // in m_classes
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
        qsizetype superclass = -1;  // in m_classes
        int depth = 1;              // length of the chain from here to the root
        TypedStreamClassChainView chain;  // made when first used
    };
    // A C string is its text.
    using Entry = std::variant<ObjectEntry, ClassLabel, QByteArrayView>;

    class Nested
    {
    public:
        explicit Nested(Parser &parser)
            : m_parser(parser)
        {
            if (m_parser.m_nesting >= MaxNesting)
                m_parser.fail("values are nested too deeply");
            ++m_parser.m_nesting;
        }
        ~Nested() { --m_parser.m_nesting; }
        Nested(const Nested &) = delete;
        Nested &operator=(const Nested &) = delete;

    private:
        Parser &m_parser;
    };

    // The message is built here, away from the paths that read sound data:
    // they stay small enough to be inlined.
    template<typename... Args>
    [[noreturn]] Q_DECL_COLD_FUNCTION Q_NEVER_INLINE void fail(const char *format,
                                                              const Args &...args) const
    {
        QString message = QString::fromLatin1(format);
        ((message = message.arg(shown(args))), ...);
        throw Failure{QStringLiteral("at byte %1: %2").arg(m_pos).arg(message)};
    }

    void spend(qint64 units)
    {
        if (units > m_work)
            fail("the stream asks for more work than its size allows");
        m_work -= units;
    }

    // ---- bytes

    bool atEnd() const { return m_pos >= m_data.size(); }
    qsizetype remaining() const { return m_data.size() - m_pos; }

    quint8 peekByte() const
    {
        if (atEnd())
            fail("the data ends early");
        return quint8(m_data[m_pos]);
    }

    quint8 readByte()
    {
        const quint8 byte = peekByte();
        ++m_pos;
        return byte;
    }

    QByteArrayView readBytes(qint64 count)
    {
        if (count > remaining())
            fail("%1 bytes announced, %2 left", count, qint64(remaining()));
        const QByteArrayView bytes = m_data.sliced(m_pos, qsizetype(count));
        m_pos += qsizetype(count);
        return bytes;
    }

    template<typename T>
    T readFixed()
    {
        if (qsizetype(sizeof(T)) > remaining())
            fail("the data ends early");
        T value;
        std::memcpy(&value, m_data.data() + m_pos, sizeof value);
        m_pos += sizeof value;
        return m_reader.m_bigEndian ? qFromBigEndian(value) : qFromLittleEndian(value);
    }

    // ---- integers, reals and strings

    qint64 readInteger() { return readInteger(readByte()); }

    // Most integers are their head byte; only the others take a call.
    Q_ALWAYS_INLINE qint64 readInteger(quint8 head)
    {
        if (head < FirstReservedTag || head > LastReservedTag)
            return qint8(head);
        return readTaggedInteger(head);
    }

    qint64 readTaggedInteger(quint8 head)
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
            fail("tag %1 where an integer belongs", HexByte{head});
        default:
            fail("reserved tag %1", HexByte{head});
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
            fail("length %1 does not fit the data", length);
        return length;
    }

    // `what` is named only when the label is wrong, so the common path builds no text.
    qsizetype readLabel(quint8 head, qsizetype tableSize, const char *what)
    {
        const qint64 label = readInteger(head);
        if (label < -LabelBias || label >= qint64(tableSize) - LabelBias)
            fail("label %1 refers to no earlier %2", label, what);
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

    std::optional<QByteArrayView> readCString()
    {
        const quint8 head = readByte();
        if (head == NilTag)
            return std::nullopt;
        if (head == NewTag) {
            const qsizetype text = readSharedString();
            if (text == NilString)
                fail("a C string without text");
            m_objectTable.emplace_back(m_sharedStrings[text]);
            return m_sharedStrings[text];
        }
        const qsizetype index =
            readLabel(head, qsizetype(m_objectTable.size()), "C string");
        const auto *text = std::get_if<QByteArrayView>(&m_objectTable[index]);
        if (!text)
            fail("a C string label refers to an object or class");
        return *text;
    }

    // ---- type strings

    // Indexed by shared string, each parsed once; the types live on the heap,
    // so references stay valid while nested groups add more.
    const std::vector<Type> &typesOf(qsizetype sharedString)
    {
        const auto index = std::size_t(sharedString);
        if (index < m_types.size() && m_types[index])
            return *m_types[index];
        return parseTypeString(sharedString);
    }

    // Kept out of typesOf(), which runs for every group.
    Q_NEVER_INLINE const std::vector<Type> &parseTypeString(qsizetype sharedString)
    {
        if (m_types.size() <= std::size_t(sharedString))
            m_types.resize(std::size_t(sharedString) + 1);
        std::unique_ptr<std::vector<Type>> &known = m_types[std::size_t(sharedString)];
        const QByteArrayView text = m_sharedStrings[sharedString];
        spend(text.size());
        if (text.isEmpty())
            fail("an empty type string");
        auto types = std::make_unique<std::vector<Type>>();
        for (qsizetype pos = 0; pos < text.size();)
            types->push_back(parseType(text, pos, 0));
        known = std::move(types);
        return *known;
    }

    Type parseType(QByteArrayView text, qsizetype &pos, int nesting)
    {
        if (nesting > MaxTypeNesting)
            fail("a type string nested too deeply");
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
                    fail("an array type of more than %1 elements", MaxArrayCount);
            }
            if (pos == digits || pos == text.size())
                fail("an array type without count or element type");
            array.members.push_back(parseType(text, pos, nesting + 1));
            if (pos == text.size() || text[pos] != ']')
                fail("an unterminated array type");
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
                    fail("an unterminated struct type");
                structure.members.push_back(parseType(text, pos, nesting + 1));
            }
            ++pos;
            return structure;
        }
        case '(':
            fail("union values are not supported");
        default:
            fail("unknown type code %1", HexByte{quint8(code)});
        }
    }

    // ---- groups and values

    void readHeader()
    {
        const quint8 version = readByte();
        if (version == OldStreamerVersion)
            fail("streamer version 3 (an older archive form) is not supported");
        if (version != StreamerVersion)
            fail("not a typed stream (streamer version %1)", qint64(version));
        if (readByte() != SignatureLength)
            fail("not a typed stream (signature length)");
        const QByteArrayView signature = readBytes(SignatureLength);
        if (signature == QByteArrayView(BigEndianSignature))
            m_reader.m_bigEndian = true;
        else if (signature != QByteArrayView(LittleEndianSignature))
            fail("not a typed stream (signature)");
        m_reader.m_systemVersion = readInteger();
    }

    void readGroup(ValueBuffer &values)
    {
        spend(1);
        const qsizetype typeString = readSharedString();
        if (typeString == NilString)
            fail("a group without a type string");
        for (const Type &type : typesOf(typeString))
            readValue(type, values);
    }

    // Numbers and byte strings, nearly every value, are read here, inline;
    // the rest in readReferenceOrCompound().
    Q_ALWAYS_INLINE void readValue(const Type &type, ValueBuffer &values)
    {
        spend(1);
        switch (type.code) {
        case 'c':
            values.append(type.code, qint64(qint8(readByte())));
            return;
        case 'C':
            values.append(type.code, qint64(readByte()));
            return;
        // Unsigned values were written as the signed value of the same bits.
        case 's':
            values.append(type.code, qint64(qint16(readInteger())));
            return;
        case 'S':
            values.append(type.code, qint64(quint16(readInteger())));
            return;
        case 'i':
        case 'l':
            values.append(type.code, qint64(qint32(readInteger())));
            return;
        case 'I':
        case 'L':
            values.append(type.code, qint64(quint32(readInteger())));
            return;
        case 'q':
        case 'Q':
            values.append(type.code, readInteger());
            return;
        case 'f':
        case 'd':
            values.append(type.code, readReal(type.code));
            return;
        case '+':
            values.append(type.code, readBytes(readLength()));
            return;
        default:
            readReferenceOrCompound(type, values);
            return;
        }
    }

    // Objects, classes, C strings, atoms and selectors, ignored fields,
    // arrays and structs.
    void readReferenceOrCompound(const Type &type, ValueBuffer &values)
    {
        const auto pushText = [&](std::optional<QByteArrayView> bytes) {
            if (bytes)
                values.append(type.code, *bytes);
            else
                values.append(type.code, std::monostate{});
        };
        switch (type.code) {
        case '@':
            if (const TypedStreamObject *object = readObject())
                values.append(type.code, object);
            else
                values.append(type.code, std::monostate{});
            return;
        case '#':
            if (const qsizetype cls = readClass(); cls >= 0)
                values.append(type.code, chainOf(cls));
            else
                values.append(type.code, std::monostate{});
            return;
        case '*':
            pushText(readCString());
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
                values.append(type.code, readBytes(type.count));
                return;
            }
            const Nested nested(*this);
            noteLevels(0);
            values.append(type.code, gather([&](ValueBuffer &elements) {
                       for (qint64 i = 0; i < type.count; ++i)
                           readValue(element, elements);
                   }));
            return;
        }
        case '{': {
            const Nested nested(*this);
            noteLevels(0);
            values.append(type.code, gather([&](ValueBuffer &fields) {
                       for (const Type &field : type.members)
                           readValue(field, fields);
                   }));
            return;
        }
        }
    }

    // The values that `read` adds, kept by the reader. They gather in the
    // buffer of the current nesting level, then are copied into the reader's
    // store in one piece.
    template<typename Read>
    std::span<const TypedStreamValue> gather(const Read &read)
    {
        Q_ASSERT(m_nesting <= MaxNesting);  // a Nested guards every caller
        ValueBuffer &buffer = m_valueBuffers[std::size_t(m_nesting)];
        buffer.clear();
        read(buffer);
        return keep(buffer.values());
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
            fail("an object label refers to a class or C string");
        if (entry->complete) {
            // A reference puts the whole object below this point: a consumer
            // that follows it recurses as deep as if it were written here.
            noteLevels(entry->height);
        } else if (!m_allowOpenReferences) {
            fail("an object refers to an object that contains it");
        }
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
            fail("an object without a class");
        object->classChain = chainOf(cls);
        object->values = gather([this](ValueBuffer &values) {
            while (peekByte() != EndOfObjectTag)
                readGroup(values);
        });
        ++m_pos;

        const int height = m_openObjects.back().height + 1;
        m_openObjects.pop_back();
        if (height > MaxNesting)
            fail("objects refer to each other too deeply");
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
    // index in m_classes of its first class, or -1 for nil.
    qsizetype readClass()
    {
        const qsizetype tableStart = qsizetype(m_objectTable.size());
        const qsizetype chainStart = qsizetype(m_classes.size());
        qsizetype superclass = -1;
        for (;;) {
            const quint8 head = readByte();
            if (head == NilTag)
                break;
            if (head != NewTag) {
                const qsizetype index = readLabel(head, tableStart, "class");
                const auto *label = std::get_if<ClassLabel>(&m_objectTable[index]);
                if (!label)
                    fail("a class label refers to an object or C string");
                superclass = label->index;
                break;
            }
            const qsizetype name = readSharedString();
            if (name == NilString)
                fail("a class without a name");
            const qint64 version = readInteger();
            if (version < std::numeric_limits<int>::min()
                || version > std::numeric_limits<int>::max())
                fail("class version %1 out of range", version);
            if (qsizetype(m_classes.size()) - chainStart >= MaxClassChain)
                fail("a class chain longer than %1", qint64(MaxClassChain));
            const TypedStreamClass cls{m_sharedStrings[name].toByteArray(), int(version)};
            recordVersion(cls);
            m_objectTable.emplace_back(ClassLabel{qsizetype(m_classes.size())});
            m_classes.push_back({cls, -1, 1, {}});
        }

        // The new classes sit side by side, each the superclass of the one
        // before.
        const qsizetype chainEnd = qsizetype(m_classes.size());
        const int inherited = superclass < 0 ? 0 : m_classes[superclass].depth;
        if (inherited + (chainEnd - chainStart) > MaxClassChain)
            fail("a class chain longer than %1", qint64(MaxClassChain));
        for (qsizetype i = chainStart; i < chainEnd; ++i) {
            ClassEntry &entry = m_classes[i];
            entry.superclass = i + 1 < chainEnd ? i + 1 : superclass;
            entry.depth = int(chainEnd - i) + inherited;
        }
        return chainEnd > chainStart ? chainStart : superclass;
    }

    // Copies the values into the reader's blocks and answers where they are.
    std::span<const TypedStreamValue> keep(std::span<const TypedStreamValue> values)
    {
        if (values.empty())
            return {};
        auto &blocks = m_reader.m_valueBlocks;
        if (blocks.empty() || blocks.back().capacity() - blocks.back().size() < values.size())
            blocks.emplace_back().reserve(std::max(ValueBlockSize, values.size()));
        std::vector<TypedStreamValue> &block = blocks.back();
        const std::size_t start = block.size();
        block.insert(block.end(), values.begin(), values.end());
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

    TypedStreamClassChainView chainOf(qsizetype classIndex)
    {
        ClassEntry &entry = m_classes[classIndex];
        if (entry.chain.empty()) {
            spend(entry.depth);
            std::vector<TypedStreamClass> &chain = m_reader.m_classChains.emplace_back();
            chain.reserve(std::size_t(entry.depth));
            for (qsizetype i = classIndex; i >= 0; i = m_classes[i].superclass)
                chain.push_back(m_classes[i].cls);
            entry.chain = chain;
        }
        return entry.chain;
    }

    TypedStreamReader &m_reader;
    const QByteArrayView m_data;
    qsizetype m_pos = 0;
    qint64 m_work;
    const bool m_allowOpenReferences;
    int m_nesting = 0;
    std::vector<QByteArrayView> m_sharedStrings;
    std::vector<std::unique_ptr<std::vector<Type>>> m_types;  // parsed type strings
    std::vector<Entry> m_objectTable;
    std::vector<ClassEntry> m_classes;
    std::vector<OpenObject> m_openObjects;
    // One per nesting level, so that an outer object's buffer stays where it
    // is while an inner one fills.
    std::array<ValueBuffer, MaxNesting + 1> m_valueBuffers;
};

TypedStreamReader::TypedStreamReader(QByteArray data, OpenReferences openReferences)
    : m_data(std::move(data))
{
    m_errorString = Parser(*this, openReferences).run();
    if (!m_errorString.isEmpty()) {
        m_objects.clear();
        m_valueBlocks.clear();
        m_classChains.clear();
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
