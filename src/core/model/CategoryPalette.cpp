#include "model/CategoryPalette.h"

#include <array>

namespace CategoryPalette {

namespace {

constexpr RgbaColor fromRgb(unsigned rgb)
{
    return {float((rgb >> 16) & 0xff) / 255.0f, float((rgb >> 8) & 0xff) / 255.0f,
            float(rgb & 0xff) / 255.0f, 1};
}

constexpr std::array<RgbaColor, 14> palette{{
    fromRgb(0xe69f00), // orange
    fromRgb(0x56b4e9), // sky blue
    fromRgb(0x009e73), // bluish green
    fromRgb(0xf0e442), // yellow
    fromRgb(0x0072b2), // blue
    fromRgb(0xd55e00), // vermilion
    fromRgb(0xcc79a7), // reddish purple
    fromRgb(0xb82040), // crimson
    fromRgb(0xf8b0a0), // peach
    fromRgb(0x884880), // plum
    fromRgb(0x68d8d0), // aqua
    fromRgb(0x9078e8), // violet
    fromRgb(0x98a058), // olive
    fromRgb(0x805800), // brown
}};

} // namespace

int size()
{
    return int(palette.size());
}

RgbaColor colorAt(int index)
{
    const int count = size();
    return palette[std::size_t(((index % count) + count) % count)];
}

RgbaColor nextColor(const QList<RgbaColor> &used)
{
    for (const RgbaColor &color : palette) {
        if (!used.contains(color))
            return color;
    }
    return colorAt(int(used.size()));
}

} // namespace CategoryPalette
