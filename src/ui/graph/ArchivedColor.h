#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QVariantList>

struct RgbaColor;

// The colours of the list file as the windows paint them.
namespace ArchivedColor {

QColor toQColor(const RgbaColor &color);
// One archived colour; gray when it cannot be read, so that a damaged entry
// still shows its category.
QColor fromArchive(const QByteArray &archive);
// The "ColorList" of the list file, one colour per entry.
QList<QColor> fromArchives(const QVariantList &archives);

} // namespace ArchivedColor
