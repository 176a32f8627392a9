// Any bytes as a QIF file: the reader must list what it cannot read, never
// crash.
#include "exchange/QifImporter.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    (void)QifImporter().parse(bytes);
    return 0;
}
