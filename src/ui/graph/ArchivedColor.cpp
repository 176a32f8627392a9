#include "graph/ArchivedColor.h"

#include "storage/ColorArchive.h"

namespace ArchivedColor {

QColor toQColor(const RgbaColor &color)
{
    return QColor::fromRgbF(color.red, color.green, color.blue, color.alpha);
}

QColor fromArchive(const QByteArray &archive)
{
    const std::optional<RgbaColor> color = ColorArchive::decode(archive);
    return color ? toQColor(*color) : QColor(Qt::gray);
}

QList<QColor> fromArchives(const QVariantList &archives)
{
    QList<QColor> colors;
    colors.reserve(archives.size());
    for (const QVariant &archive : archives)
        colors.append(fromArchive(archive.toByteArray()));
    return colors;
}

} // namespace ArchivedColor
