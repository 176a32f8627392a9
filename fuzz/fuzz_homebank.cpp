// Any bytes as a HomeBank file: the reader must list what it cannot read,
// never crash.
#include "exchange/HomeBankImporter.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    (void)HomeBankImporter().parse(bytes);
    return 0;
}
