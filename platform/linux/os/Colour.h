#pragma once

#include <cstdint>

namespace quindle {

/// A colour as 0xAARRGGBB, not premultiplied; 0 is transparent.
using Argb = std::uint32_t;

/// Of channels from 0 to 255.
constexpr Argb opaqueColour(std::uint32_t red, std::uint32_t green, std::uint32_t blue)
{
    return 0xff000000U | red << 16U | green << 8U | blue;
}

constexpr std::uint32_t alphaOf(Argb colour)
{
    return colour >> 24U;
}

constexpr std::uint32_t redOf(Argb colour)
{
    return colour >> 16U & 0xffU;
}

constexpr std::uint32_t greenOf(Argb colour)
{
    return colour >> 8U & 0xffU;
}

constexpr std::uint32_t blueOf(Argb colour)
{
    return colour & 0xffU;
}

} // namespace quindle
