#include "platform/linux/pictures/Lettering.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/linux/pictures/ShapingNeed.h"

namespace quindle {

namespace {

// A title has a dozen characters, and one host wants it in thirteen sizes.
constexpr std::size_t mostKept = 1024;
constexpr std::size_t mostDrawn = 512;
constexpr std::size_t mostFonts = 16;

/// Glyphs stand on quarters of a pixel; nobody sees what is in between.
constexpr int quarters = 4;

/// Longer lines are never shown, and integers must not overflow.
constexpr double longestLine = 100'000.0;

/// The result of `make` for the key, made once. When too much is kept, all of it is forgotten: titles stay
/// alike, so that hardly ever happens.
template <typename Map, typename Make>
const typename Map::mapped_type& kept(Map& map, const typename Map::key_type& key, std::size_t most,
                                      const Make& make)
{
    const auto found = map.find(key);
    if (found != map.end())
        return found->second;
    if (map.size() >= most)
        map.clear();
    return map.emplace(key, make()).first->second;
}

/// A joiner or non-joiner, or what chooses among the forms of the character before it. None has a shape
/// itself.
bool joinsOrVaries(char32_t character)
{
    return character == 0x200C || character == 0x200D || (character >= 0xFE00 && character <= 0xFE0F) ||
           (character >= 0xE0100 && character <= 0xE01EF);
}

} // namespace

void Lettering::setFamily(const QString& family)
{
    if (std::exchange(m_family, family) != family || m_fonts.hasLostOne())
        forget();
}

void Lettering::forget()
{
    m_fonts.setFamily(m_family);
    m_characters.clear();
    m_kerning.clear();
    m_drawn.clear();
    m_capHeights.clear();
}

TextLine Lettering::line(const QString& text, int pixelSize)
{
    if (m_fonts.size() > mostFonts)
        forget();
    const std::u32string characters = drawnCharacters(text);
    if (needsShaping(characters)) {
        if (auto shaped = shapedLine(characters, pixelSize))
            return *std::move(shaped);
    }
    return plainLine(characters, pixelSize);
}

TextLine Lettering::plainLine(std::u32string_view text, int pixelSize)
{
    TextLine line{pixelSize, 0.0, {}};
    std::optional<Character> last;
    for (const char32_t c : text) {
        const Character next = character(c, pixelSize);
        // A font knows only its own glyphs.
        if (last && last->font == next.font)
            line.advance += kerning(*last, next, pixelSize);
        line.glyphs.push_back({next.font, next.glyph, {line.advance, 0.0}});
        line.advance = std::min(line.advance + next.advance, longestLine);
        last = next;
    }
    return line;
}

std::optional<TextLine> Lettering::shapedLine(std::u32string_view text, int pixelSize)
{
    FontFace* family = m_fonts.face(FontSet::familyFont, pixelSize);
    if (!family)
        return std::nullopt;
    const auto glyphs = m_shaping.shape(text, runsOf(text, pixelSize), family->measuringFlags());
    if (!glyphs)
        return std::nullopt;
    TextLine line{pixelSize, 0.0, {}};
    for (const ShapedGlyph& shaped : *glyphs) {
        const std::size_t font = m_fonts.numberOf(shaped.face);
        // Emoji are laid out in the size in which their font has them.
        const double scale = m_fonts.face(font, pixelSize)->bitmapScale();
        const QPointF pen(line.advance + shaped.right * scale, -shaped.up * scale);
        line.glyphs.push_back({font, shaped.glyph, pen});
        line.advance = std::clamp(line.advance + shaped.advance * scale, 0.0, longestLine);
    }
    return line;
}

std::vector<FontRun> Lettering::runsOf(std::u32string_view text, int pixelSize)
{
    std::vector<FontRun> runs;
    for (std::size_t i = 0; i < text.size(); ++i) {
        // In another font it would part what it is to join.
        if (!runs.empty() && joinsOrVaries(text[i])) {
            ++runs.back().length;
            continue;
        }
        FontFace* fallback = m_fonts.face(m_fonts.fontFor(text[i], pixelSize), pixelSize);
        FontFace* face = fallback ? fallback : m_fonts.face(FontSet::familyFont, pixelSize);
        if (runs.empty() || runs.back().face != face->face())
            runs.push_back({face->face(), i, 0});
        ++runs.back().length;
    }
    return runs;
}

Lettering::Character Lettering::character(char32_t character, int pixelSize)
{
    return kept(m_characters, {character, pixelSize}, mostKept, [&]() -> Character {
        const std::size_t font = m_fonts.fontFor(character, pixelSize);
        FontFace* face = m_fonts.face(font, pixelSize);
        if (!face)
            return {};
        const std::uint32_t glyph = face->glyphOf(character);
        return {font, glyph, face->advanceOf(glyph)};
    });
}

double Lettering::kerning(const Character& left, const Character& right, int pixelSize)
{
    return kept(m_kerning, {left.font, left.glyph, right.glyph, pixelSize}, mostKept, [&] {
        FontFace* face = m_fonts.face(left.font, pixelSize);
        return face ? face->kerningOf(left.glyph, right.glyph) : 0.0;
    });
}

const DrawnGlyph& Lettering::drawn(const PlacedGlyph& glyph, int pixelSize, int quarter)
{
    return kept(m_drawn, {glyph.font, glyph.glyph, pixelSize, quarter}, mostDrawn, [&] {
        FontFace* face = m_fonts.face(glyph.font, pixelSize);
        return (face ? face->draw(glyph.glyph, static_cast<double>(quarter) / quarters) : std::nullopt)
            .value_or(DrawnGlyph());
    });
}

double Lettering::capHeight(int pixelSize)
{
    return kept(m_capHeights, pixelSize, mostKept, [&] {
        FontFace* face = m_fonts.face(FontSet::familyFont, pixelSize);
        return face ? face->capHeight() : 0.0;
    });
}

QRectF Lettering::inkOf(const TextLine& line)
{
    QRectF ink;
    for (const PlacedGlyph& glyph : line.glyphs) {
        FontFace* face = m_fonts.face(glyph.font, line.pixelSize);
        const QRectF box = face ? face->boxOf(glyph.glyph) : QRectF();
        if (!box.isEmpty())
            ink |= box.translated(glyph.pen);
    }
    return ink;
}

void Lettering::paint(Pixels& onto, int x, int y, const TextLine& line, Argb ink)
{
    for (const PlacedGlyph& placed : line.glyphs) {
        const int steps = static_cast<int>(std::floor(placed.pen.x() * quarters));
        const int whole = static_cast<int>(std::floor(static_cast<double>(steps) / quarters));
        const DrawnGlyph& glyph = drawn(placed, line.pixelSize, steps - whole * quarters);
        const int left = x + whole + glyph.left;
        const int top = y + static_cast<int>(std::lround(placed.pen.y())) - glyph.top;
        paintMask(onto, left, top, glyph.shape, ink);
        paintPixels(onto, left, top, glyph.picture);
    }
}

QRectF Lettering::addOutline(const TextLine& line, std::vector<OutlineStep>& steps)
{
    QRectF outlined;
    for (const PlacedGlyph& glyph : line.glyphs) {
        FontFace* face = m_fonts.face(glyph.font, line.pixelSize);
        if (face)
            outlined |= face->addOutline(glyph.glyph, glyph.pen, steps);
    }
    return outlined;
}

bool Lettering::rest()
{
    m_fonts.rest();
    return !m_fonts.hasLostOne();
}

} // namespace quindle
