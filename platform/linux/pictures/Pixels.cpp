#include "platform/linux/pictures/Pixels.h"

#include <algorithm>
#include <cmath>

namespace quindle {

namespace {

std::size_t areaOf(int width, int height)
{
    return width > 0 && height > 0 ? static_cast<std::size_t>(width) * static_cast<std::size_t>(height) : 0;
}

template <typename Sides>
std::size_t placeOf(const Sides& picture, int x, int y)
{
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
           static_cast<std::size_t>(x);
}

/// The two channels in the bits of 0x00ff00ff, each times share / 255 and rounded.
std::uint32_t scaledPair(std::uint32_t channels, std::uint32_t share)
{
    const std::uint32_t products = (channels & 0xff00ffU) * share + 0x800080U;
    return (products + (products >> 8U & 0xff00ffU)) >> 8U & 0xff00ffU;
}

/// Each channel, alpha too, times share / 255.
std::uint32_t scaled(std::uint32_t pixel, std::uint32_t share)
{
    return scaledPair(pixel >> 8U, share) << 8U | scaledPair(pixel, share);
}

std::uint32_t premultiplied(Argb colour)
{
    return scaled(colour | 0xff000000U, alphaOf(colour));
}

/// One premultiplied pixel seen through another above it. No channel overflows, because none is greater than
/// its alpha.
std::uint32_t above(std::uint32_t top, std::uint32_t bottom)
{
    return top + scaled(bottom, 255U - alphaOf(top));
}

/// Calls `paint(place in onto, place in the other picture)` for each pixel that both have.
template <typename Other, typename Paint>
void forEachCommon(const Pixels& onto, int x, int y, const Other& other, const Paint& paint)
{
    const int top = std::max(0, -y);
    const int bottom = std::min(other.height, onto.height - y);
    const int left = std::max(0, -x);
    const int right = std::min(other.width, onto.width - x);
    for (int row = top; row < bottom; ++row) {
        for (int column = left; column < right; ++column)
            paint(placeOf(onto, x + column, y + row), placeOf(other, column, row));
    }
}

/// How much of a pixel is inside a circle, by sampling; its corner is that far from the centre.
std::uint8_t coverageInCircle(double x, double y, double radius)
{
    constexpr int places = 8;
    int inside = 0;
    for (int i = 0; i < places * places; ++i) {
        const int column = i % places;
        const int row = i / places;
        const double dx = x - (column + 0.5) / places;
        const double dy = y - (row + 0.5) / places;
        inside += dx * dx + dy * dy <= radius * radius ? 1 : 0;
    }
    return static_cast<std::uint8_t>(inside * 255 / (places * places));
}

} // namespace

Pixels blankPixels(int width, int height)
{
    const std::size_t area = areaOf(width, height);
    return area == 0 ? Pixels() : Pixels{width, height, std::vector<std::uint32_t>(area)};
}

Mask blankMask(int width, int height)
{
    const std::size_t area = areaOf(width, height);
    return area == 0 ? Mask() : Mask{width, height, std::vector<std::uint8_t>(area)};
}

Argb colourAt(const Pixels& pixels, int x, int y)
{
    const std::uint32_t pixel = pixels.data[placeOf(pixels, x, y)];
    const std::uint32_t alpha = alphaOf(pixel);
    if (alpha == 0)
        return 0;
    // Rounding may have left a channel a little above its alpha.
    const auto whole = [alpha](std::uint32_t channel) {
        return std::min<std::uint32_t>(255U, (channel * 255U + alpha / 2U) / alpha);
    };
    return (opaqueColour(whole(redOf(pixel)), whole(greenOf(pixel)), whole(blueOf(pixel))) & 0xffffffU) |
           alpha << 24U;
}

void paintMask(Pixels& onto, int x, int y, const Mask& mask, Argb ink)
{
    const std::uint32_t whole = premultiplied(ink);
    forEachCommon(onto, x, y, mask, [&](std::size_t place, std::size_t from) {
        if (mask.coverage[from] != 0)
            onto.data[place] = above(scaled(whole, mask.coverage[from]), onto.data[place]);
    });
}

void paintPixels(Pixels& onto, int x, int y, const Pixels& picture)
{
    forEachCommon(onto, x, y, picture, [&](std::size_t place, std::size_t from) {
        onto.data[place] = above(picture.data[from], onto.data[place]);
    });
}

Mask roundedRectangle(int width, int height, int inset, double radius)
{
    Mask mask = blankMask(width, height);
    const int last = height - inset - 1;
    if (mask.isEmpty() || last < inset)
        return mask;
    std::fill(mask.coverage.begin() + static_cast<std::ptrdiff_t>(placeOf(mask, 0, inset)),
              mask.coverage.end() - static_cast<std::ptrdiff_t>(placeOf(mask, 0, inset)), std::uint8_t{255});
    const double round = std::min({radius, width / 2.0, height / 2.0 - inset});
    const int corner = static_cast<int>(std::ceil(round));
    for (int y = 0; y < corner; ++y) {
        for (int x = 0; x < corner; ++x) {
            const std::uint8_t coverage = coverageInCircle(round - x, round - y, round);
            // One corner, mirrored into the three others.
            for (const int row : {inset + y, last - y}) {
                mask.coverage[placeOf(mask, x, row)] = coverage;
                mask.coverage[placeOf(mask, width - 1 - x, row)] = coverage;
            }
        }
    }
    return mask;
}

} // namespace quindle
