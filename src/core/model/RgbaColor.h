#pragma once

// A colour as the lists keep it, components 0..1; black by default.
struct RgbaColor
{
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 1;

    static constexpr RgbaColor gray() { return {0.5f, 0.5f, 0.5f, 1}; }

    friend bool operator==(const RgbaColor &, const RgbaColor &) = default;
};
