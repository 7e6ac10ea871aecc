#include "platform/linux/pictures/GlyphBitmap.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include <ft2build.h>
#include FT_FREETYPE_H

namespace quindle {

namespace {

constexpr unsigned largestBitmap = 2048;

/// The bytes of a row; the distance between rows is negative in bitmaps from the bottom upwards.
const unsigned char* rowOf(const FT_Bitmap& bitmap, int row)
{
    const auto rows = static_cast<std::ptrdiff_t>(bitmap.rows);
    const std::ptrdiff_t pitch = bitmap.pitch;
    return pitch >= 0 ? bitmap.buffer + row * pitch : bitmap.buffer + (rows - 1 - row) * -pitch;
}

std::uint8_t coverageIn(const FT_Bitmap& bitmap, const unsigned char* row, int column)
{
    if (bitmap.pixel_mode == FT_PIXEL_MODE_MONO)
        return (row[column / 8] >> (7 - column % 8) & 1) != 0 ? 255 : 0;
    return row[column];
}

/// As a picture: white where a shape covers it.
Pixels picture(const FT_Bitmap& bitmap)
{
    Pixels pixels = blankPixels(static_cast<int>(bitmap.width), static_cast<int>(bitmap.rows));
    auto to = pixels.data.begin();
    for (int y = 0; y < pixels.height; ++y) {
        const unsigned char* row = rowOf(bitmap, y);
        for (int x = 0; x < pixels.width; ++x) {
            if (bitmap.pixel_mode == FT_PIXEL_MODE_BGRA) {
                const unsigned char* at = row + std::ptrdiff_t{4} * x;
                // The library has multiplied the colours by alpha.
                *to++ = (opaqueColour(at[2], at[1], at[0]) & 0xffffffU) | std::uint32_t{at[3]} << 24U;
            } else {
                // White times its coverage is the same in all four channels.
                *to++ = std::uint32_t{coverageIn(bitmap, row, x)} * 0x01010101U;
            }
        }
    }
    return pixels;
}

Mask shapeOf(const Pixels& pixels)
{
    Mask mask = blankMask(pixels.width, pixels.height);
    std::transform(pixels.data.begin(), pixels.data.end(), mask.coverage.begin(),
                   [](std::uint32_t pixel) { return static_cast<std::uint8_t>(alphaOf(pixel)); });
    return mask;
}

bool isKnownKind(const FT_Bitmap& bitmap)
{
    return bitmap.pixel_mode == FT_PIXEL_MODE_GRAY || bitmap.pixel_mode == FT_PIXEL_MODE_MONO ||
           bitmap.pixel_mode == FT_PIXEL_MODE_BGRA;
}

/// The mean of a rectangle of the picture whose edges may be between pixels.
std::uint32_t mean(const Pixels& picture, double left, double top, double right, double bottom)
{
    std::array<double, 4> sums{};
    double area = 0.0;
    const auto last = [](double edge, int side) { return std::min(side, static_cast<int>(std::ceil(edge))); };
    for (int y = static_cast<int>(top); y < last(bottom, picture.height); ++y) {
        for (int x = static_cast<int>(left); x < last(right, picture.width); ++x) {
            const double share = (std::min(right, x + 1.0) - std::max(left, static_cast<double>(x))) *
                                 (std::min(bottom, y + 1.0) - std::max(top, static_cast<double>(y)));
            const std::uint32_t pixel =
                picture.data[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
                             static_cast<std::size_t>(x)];
            for (std::size_t channel = 0; channel < 4; ++channel)
                sums[channel] += share * (pixel >> (8U * channel) & 0xffU);
            area += share;
        }
    }
    std::uint32_t pixel = 0;
    for (std::size_t channel = 0; channel < 4 && area > 0.0; ++channel)
        pixel |= static_cast<std::uint32_t>(std::lround(sums[channel] / area)) << (8U * channel);
    return pixel;
}

int scaledSide(int side, double scale)
{
    return side == 0 ? 0 : std::max(1, static_cast<int>(std::lround(side * scale)));
}

} // namespace

Pixels resized(const Pixels& picture, int width, int height)
{
    if (width == picture.width && height == picture.height)
        return picture;
    Pixels made = blankPixels(picture.isEmpty() ? 0 : width, height);
    const double across = static_cast<double>(picture.width) / std::max(1, width);
    const double down = static_cast<double>(picture.height) / std::max(1, height);
    auto to = made.data.begin();
    for (int y = 0; y < made.height; ++y) {
        for (int x = 0; x < made.width; ++x)
            *to++ = mean(picture, x * across, y * down, (x + 1) * across, (y + 1) * down);
    }
    return made;
}

DrawnGlyph glyphOfBitmap(const FT_GlyphSlotRec_& slot, double scale)
{
    const FT_Bitmap& bitmap = slot.bitmap;
    DrawnGlyph glyph{static_cast<int>(std::lround(slot.bitmap_left * scale)),
                     static_cast<int>(std::lround(slot.bitmap_top * scale)),
                     {},
                     {}};
    // A space has no pixels, and a broken font may have any number.
    if (!bitmap.buffer || !isKnownKind(bitmap) || bitmap.width > largestBitmap || bitmap.rows > largestBitmap)
        return glyph;
    Pixels pixels = picture(bitmap);
    pixels = resized(pixels, scaledSide(pixels.width, scale), scaledSide(pixels.height, scale));
    if (bitmap.pixel_mode == FT_PIXEL_MODE_BGRA)
        glyph.picture = std::move(pixels);
    else
        glyph.shape = shapeOf(pixels);
    return glyph;
}

} // namespace quindle
