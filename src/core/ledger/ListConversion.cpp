#include "ledger/ListConversion.h"

#include "storage/ColorArchive.h"
#include "storage/ListFile.h"

void ListConversion::setLists(const StoredLists &stored, const QString &folder)
{
    const QVariantList held = ListFile::preferenceDataListForKey(folder, ListFile::ColorList);
    const auto archiveOf = [&held](const RgbaColor &color) {
        for (const QVariant &archive : held) {
            if (ColorArchive::decode(archive.toByteArray()) == color)
                return archive.toByteArray();
        }
        return ColorArchive::encode(color);
    };
    QVariantList colors;
    for (qsizetype i = 0; i + 1 < stored.categories.size(); ++i)
        colors.append(archiveOf(stored.colors.value(i)));
    if (!stored.categories.isEmpty())
        colors.append(ColorArchive::encodeWhite(RgbaColor::gray().red));
    lists = {{ListFile::CategoryList, QVariant(stored.categories).toList()},
             {ListFile::ColorList, colors},
             {ListFile::PaywayList, QVariant(stored.payways).toList()}};
}
