#pragma once

#include "model/RgbaColor.h"

#include <QColor>

// The lists' colours as the windows paint and pick them.
inline QColor toQColor(const RgbaColor &color)
{
    return QColor::fromRgbF(color.red, color.green, color.blue, color.alpha);
}

inline RgbaColor toRgba(const QColor &color)
{
    const QColor rgb = color.toRgb();
    return {rgb.redF(), rgb.greenF(), rgb.blueF(), rgb.alphaF()};
}
