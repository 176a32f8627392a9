// Any bytes through the typed-stream reader and, when they read, through the
// decoder calls that a class mapping makes.

#include "storage/ColorArchive.h"
#include "storage/MonthFile.h"
#include "storage/TypedStreamDecoder.h"
#include "storage/TypedStreamObject.h"
#include "storage/TypedStreamReader.h"

#include <QSet>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

class Visitor
{
public:
    explicit Visitor(const TypedStreamReader &reader)
        : m_reader(reader)
    {
    }

    // Each object once, however often the stream refers to it: the graph may
    // share far more than it holds.
    void run()
    {
        TypedStreamDecoder top(m_reader);
        decodeAll(top);
        while (!m_pending.empty()) {
            const TypedStreamObject *object = m_pending.back();
            m_pending.pop_back();
            (void)m_reader.versionForClassName(object->className());
            TypedStreamDecoder decoder = top.decoderFor(object);
            decodeAll(decoder);
        }
    }

private:
    void note(const TypedStreamObject *object)
    {
        if (object && !m_seen.contains(object)) {
            m_seen.insert(object);
            m_pending.push_back(object);
        }
    }

    void decodeAll(TypedStreamDecoder &decoder)
    {
        while (!decoder.atEnd() && !decoder.hasError()) {
            switch (decoder.nextType()) {
            case 'i':
                decoder.decodeInt();
                break;
            case 'l':
                decoder.decodeLong();
                break;
            case 'c':
                decoder.decodeChar();
                break;
            case 'f':
                decoder.decodeFloat();
                break;
            case '@': {
                TypedStreamDecoder lookahead = decoder;
                const TypedStreamObject *object = lookahead.decodeObject();
                if (object && object->inherits("NSString")) {
                    decoder.decodeString();
                } else if (object && object->inherits("NSArray")) {
                    for (const TypedStreamObject *element : decoder.decodeArray())
                        note(element);
                } else {
                    note(decoder.decodeObject());
                }
                break;
            }
            default:
                decoder.decodeValue();
                break;
            }
        }
        decoder.finish();
    }

    const TypedStreamReader &m_reader;
    QSet<const TypedStreamObject *> m_seen;
    std::vector<const TypedStreamObject *> m_pending;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data),
                                                     qsizetype(size));
    // As the month files read them, and as the dump reads anything: the
    // visitor remembers the objects it met, so cycles end there.
    for (const auto openReferences : {TypedStreamReader::OpenReferences::Refuse,
                                      TypedStreamReader::OpenReferences::Allow}) {
        const TypedStreamReader reader(bytes, openReferences);
        if (reader.isValid())
            Visitor(reader).run();
    }
    (void)MonthFile::decode(bytes, nullptr);
    (void)ColorArchive::decode(bytes);
    return 0;
}
