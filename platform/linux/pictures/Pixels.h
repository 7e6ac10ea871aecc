#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/linux/os/Colour.h"

namespace quindle {

/// A picture: its pixels row by row from the top, each 0xAARRGGBB with the colour multiplied by alpha.
struct Pixels
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> data; ///< width times height of them

    bool isEmpty() const { return data.empty(); }

    friend bool operator==(const Pixels&, const Pixels&) = default;
};

/// How much of each pixel a shape covers, 0 to 255, row by row from the top.
struct Mask
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> coverage; ///< width times height of them

    bool isEmpty() const { return coverage.empty(); }

    friend bool operator==(const Mask&, const Mask&) = default;
};

/// A transparent picture; empty unless both sides are positive.
Pixels blankPixels(int width, int height);

/// A mask that covers nothing; empty unless both sides are positive.
Mask blankMask(int width, int height);

/// The colour of a pixel in the picture.
Argb colourAt(const Pixels& pixels, int x, int y);

/// Paints the shape in that colour, its top left corner at x and y, clipped to the picture.
void paintMask(Pixels& onto, int x, int y, const Mask& mask, Argb ink);

/// The same with a picture.
void paintPixels(Pixels& onto, int x, int y, const Pixels& picture);

/// A rectangle with round corners that fills a mask but for `inset` pixels above and below.
Mask roundedRectangle(int width, int height, int inset, double radius);

} // namespace quindle
