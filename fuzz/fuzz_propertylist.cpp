// Any bytes as the list file: the property-list parser must refuse what it
// cannot read, never crash.
#include "storage/PropertyList.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const QVariant value = PropertyList::fromData(bytes);
    if (value.isValid())
        (void)PropertyList::toXml(value);
    return 0;
}
