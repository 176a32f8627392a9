#include "widgets/ThemeColors.h"

#include <algorithm>
#include <cmath>

namespace ThemeColors {

double relativeLuminance(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const QColor rgb = color.toRgb();
    return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF())
        + 0.0722 * linear(rgb.blueF());
}

double contrastRatio(const QColor &a, const QColor &b)
{
    const double la = relativeLuminance(a);
    const double lb = relativeLuminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor mix(const QColor &from, const QColor &to, double amount)
{
    const QColor a = from.toRgb();
    const QColor b = to.toRgb();
    const auto blend = [amount](float x, float y) { return float(x + (y - x) * amount); };
    return QColor::fromRgbF(blend(a.redF(), b.redF()), blend(a.greenF(), b.greenF()),
                            blend(a.blueF(), b.blueF()), blend(a.alphaF(), b.alphaF()));
}

QColor alertRed(const QColor &background)
{
    const QColor deep(0xb3, 0x26, 0x1e);
    const QColor light(0xff, 0x8a, 0x80);
    return contrastRatio(deep, background) >= contrastRatio(light, background) ? deep : light;
}

QColor warningAmber(const QColor &background)
{
    const QColor deep(0x8f, 0x5b, 0x00);
    const QColor light(0xff, 0xc1, 0x4d);
    return contrastRatio(deep, background) >= contrastRatio(light, background) ? deep : light;
}

} // namespace ThemeColors
