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
    fromRgb(0x4e79a7), // blue
    fromRgb(0xf28e2b), // orange
    fromRgb(0xe15759), // red
    fromRgb(0x76b7b2), // teal
    fromRgb(0x59a14f), // green
    fromRgb(0xedc948), // yellow
    fromRgb(0xb07aa1), // purple
    fromRgb(0xff9da7), // pink
    fromRgb(0x9c755f), // brown
    fromRgb(0xa0cbe8), // light blue
    fromRgb(0xffbe7d), // light orange
    fromRgb(0x8cd17d), // light green
    fromRgb(0xd37295), // rose
    fromRgb(0xb6992d), // olive
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
