#pragma once

#include <map>
#include <optional>
#include <string_view>
#include <tuple>
#include <vector>

#include <QPointF>
#include <QRectF>
#include <QString>

#include "platform/linux/pictures/FontSet.h"
#include "platform/linux/pictures/Shaping.h"

namespace quindle {

/// A glyph in its place on a line.
struct PlacedGlyph
{
    std::size_t font = 0; ///< its number in the Lettering
    std::uint32_t glyph = 0;
    QPointF pen; ///< from the line's beginning, pixels, y downwards
};

/// A text laid out in one size; to be used before the family changes.
struct TextLine
{
    int pixelSize = 0;
    double advance = 0.0; ///< pixels
    std::vector<PlacedGlyph> glyphs;
};

/// Writes lines of text in the demi-bold of one family, and in other fonts what that lacks. Glyphs are kept,
/// so that files are opened only for a line with something new. Main thread only.
class Lettering
{
public:
    /// The family; empty, as in the beginning, for the system's usual one.
    void setFamily(const QString& family);

    /// The text in that size, 1 to 1000 pixels. It has no glyphs where there is no font at all.
    TextLine line(const QString& text, int pixelSize);

    /// The height of the family's capitals, pixels.
    double capHeight(int pixelSize);

    /// The box around the line's glyphs, pixels from its beginning on the baseline, y downwards.
    QRectF inkOf(const TextLine& line);

    /// Draws the line; its beginning on the baseline is at x and y.
    void paint(Pixels& onto, int x, int y, const TextLine& line, Argb ink);

    /// Adds the line's outline, and gives the box around it. Glyphs that have none are left out.
    QRectF addOutline(const TextLine& line, std::vector<OutlineStep>& steps);

    /// Closes all files until they are needed again. False when the file of a font that was used before could
    /// not be opened any more: what was drawn may lack characters, and once a family is set, fonts are chosen
    /// anew.
    bool rest();

private:
    struct Character
    {
        std::size_t font = 0;
        std::uint32_t glyph = 0;
        double advance = 0.0;
    };

    Character character(char32_t character, int pixelSize);
    double kerning(const Character& left, const Character& right, int pixelSize);
    const DrawnGlyph& drawn(const PlacedGlyph& glyph, int pixelSize, int quarter);
    TextLine plainLine(std::u32string_view text, int pixelSize);
    std::optional<TextLine> shapedLine(std::u32string_view text, int pixelSize);
    std::vector<FontRun> runsOf(std::u32string_view text, int pixelSize);
    void forget();

    QString m_family;
    FontSet m_fonts;
    Shaping m_shaping;
    std::map<std::pair<char32_t, int>, Character> m_characters; ///< by size
    std::map<std::tuple<std::size_t, std::uint32_t, std::uint32_t, int>, double>
        m_kerning; ///< font, pair, size
    std::map<std::tuple<std::size_t, std::uint32_t, int, int>, DrawnGlyph>
        m_drawn;                        ///< font, glyph, size, quarter
    std::map<int, double> m_capHeights; ///< by size
};

} // namespace quindle
