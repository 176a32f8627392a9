// Any bytes as the change journal: reading it must take whole records only
// and stop at the first damaged one, never crash; the months it yields are
// decoded as a replay would.
#include "storage/ChangeJournal.h"
#include "storage/MonthFile.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QString reason;
    for (const ChangeJournal::Month &month : ChangeJournal::read(bytes).months)
        (void)MonthFile::decode(month.content, &reason);
    return 0;
}
