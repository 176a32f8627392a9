#pragma once

#include <QByteArray>
#include <QString>

#include "model/RgbaColor.h"

#include <optional>

// The colours of the list file are archives of one colour object each, in the
// same archive format as the month files.
namespace ColorArchive {

// A calibrated-RGB colour.
QByteArray encode(const RgbaColor &color);
// A calibrated-white (gray) colour.
QByteArray encodeWhite(float white, float alpha = 1);

// Any colour archive we can make sense of: RGB and white spaces, calibrated
// or device, CMYK, and named colours by the value they carry.
std::optional<RgbaColor> decode(const QByteArray &archive, QString *error = nullptr);

// The initial colour of each of `count` categories, from the category
// palette, with the last (income) gray.
QList<QByteArray> initialColors(int count);

} // namespace ColorArchive
