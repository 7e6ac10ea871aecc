#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QPointF>
#include <QRectF>

#include "platform/linux/pictures/FontChoice.h"
#include "platform/linux/pictures/Pixels.h"

struct FT_FaceRec_;
struct FT_GlyphSlotRec_;
struct FT_LibraryRec_;

namespace quindle {

class PairKerning;

/// The font library's lengths are in 64ths of a pixel.
inline constexpr double unitsPerPixel = 64.0;

/// A glyph as pixels: a shape to be coloured, or a picture in its own colours.
struct DrawnGlyph
{
    int left = 0; ///< of its left edge from the pen, pixels
    int top = 0;  ///< of its upper edge above the baseline, pixels
    Mask shape;
    Pixels picture; ///< empty for a shape
};

/// A piece of an outline, in an SVG path's terms: M, L, Q or C with its points, or Z with none.
struct OutlineStep
{
    char command = 'Z';
    std::vector<QPointF> points; ///< y grows downwards
};

/// Shared by open font files; must outlive them all.
std::shared_ptr<FT_LibraryRec_> fontLibrary();

/// A font's file, open. Whatever the file holds, its figures are finite and of the order of the size.
class FontFace
{
public:
    /// Null for a file that is not a usable font.
    static std::unique_ptr<FontFace> open(const std::shared_ptr<FT_LibraryRec_>& library,
                                          const FontFile& file);
    ~FontFace();
    FontFace(const FontFace&) = delete;
    FontFace& operator=(const FontFace&) = delete;

    /// Before anything is asked of glyphs. False when the font cannot be had in that size, 1 to 1000 pixels.
    bool setPixelSize(int pixels);

    /// 0 when the font has no such character; glyph 0 is the sign for that.
    std::uint32_t glyphOf(char32_t character) const;

    /// How far the pen moves, pixels.
    double advanceOf(std::uint32_t glyph);

    /// What comes to the left glyph's advance before the right one, pixels.
    double kerningOf(std::uint32_t left, std::uint32_t right);

    /// Whether glyphs stand between whole pixels. Else their advances are whole.
    bool hasFractions() const;

    /// The height of capitals, pixels.
    double capHeight();

    /// The glyph's box about the pen, y downwards, pixels.
    QRectF boxOf(std::uint32_t glyph);

    /// The glyph with the pen that part of a pixel to the right; nothing when it has none.
    std::optional<DrawnGlyph> draw(std::uint32_t glyph, double fraction);

    /// Adds the glyph's outline with the pen at `pen`, and gives its box; an empty box when it has none.
    QRectF addOutline(std::uint32_t glyph, QPointF pen, std::vector<OutlineStep>& steps);

    /// For code that uses the library directly: the font, how to measure it, and the factor for the lengths.
    FT_FaceRec_* face() const { return m_face; }
    int measuringFlags() const;
    double bitmapScale() const { return m_bitmapScale; }

private:
    FontFace(std::shared_ptr<FT_LibraryRec_> library, FT_FaceRec_* face, const FontFile& file);
    void useVariations(const QByteArray& variations);
    bool selectBitmaps(int pixels);
    FT_GlyphSlotRec_* load(std::uint32_t glyph, int flags);

    std::shared_ptr<FT_LibraryRec_> m_library;
    FT_FaceRec_* m_face;
    FontFile m_file;
    int m_loadFlags;
    int m_pixelSize = 0;
    double m_bitmapScale = 1.0; ///< of a font that has glyphs in a few sizes only
    std::unique_ptr<PairKerning> m_kerning;
};

} // namespace quindle
