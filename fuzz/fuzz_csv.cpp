// Any bytes as a CSV statement: read with the detected layout and with a
// fixed one, the reader must list what it cannot read, never crash.
#include "exchange/CsvImporter.h"

#include <QStandardPaths>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Mappings remembered by header line are looked up in the settings:
    // the test ones, never the user's.
    static const bool testSettings = (QStandardPaths::setTestModeEnabled(true), true);
    (void)testSettings;
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    (void)CsvImporter().parse(bytes);
    using Role = CsvMapping::Role;
    CsvMapping fixed;
    fixed.roles = {Role::Date, Role::Debit, Role::Credit, Role::Details, Role::Details};
    fixed.delimiter = ';';
    fixed.encoding = QStringLiteral("CP932");
    fixed.dateOrder = DateOrder::DayMonthYear;
    fixed.decimalMark = DecimalMark::Comma;
    (void)CsvImporter(fixed).parse(bytes);
    return 0;
}
