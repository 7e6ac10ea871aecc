#include "platform/linux/pictures/FontFace.h"

#include <algorithm>
#include <cmath>

#include <QList>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_MULTIPLE_MASTERS_H
#include FT_OUTLINE_H
#include FT_SYNTHESIS_H
#include FT_TRUETYPE_TABLES_H
#include FT_TRUETYPE_TAGS_H

#include "platform/linux/pictures/GlyphBitmap.h"
#include "platform/linux/pictures/GlyphOutline.h"
#include "platform/linux/pictures/PairKerning.h"

namespace quindle {

namespace {

constexpr double perUnit = 65536.0;

/// No glyph is wider than this many times the font's size.
constexpr double widest = 8.0;

int flagsOf(const FontFile& file, FT_Face face)
{
    int flags = FT_HAS_COLOR(face) ? FT_LOAD_COLOR : FT_LOAD_DEFAULT;
    // Bitmaps of letters, which some fonts have for a few sizes, are not smoothed.
    if (FT_IS_SCALABLE(face) && !FT_HAS_COLOR(face))
        flags |= FT_LOAD_NO_BITMAP;
    if (file.usesAutohinter)
        flags |= FT_LOAD_FORCE_AUTOHINT;
    if (file.hinting == FontFile::Hinting::None)
        return flags | FT_LOAD_NO_HINTING;
    if (!file.isAntialiased)
        return flags | FT_LOAD_TARGET_MONO;
    return flags | (file.hinting == FontFile::Hinting::Slight ? FT_LOAD_TARGET_LIGHT : FT_LOAD_TARGET_NORMAL);
}

/// The two bytes at an offset of the GPOS table; see TableReader.
std::uint16_t kerningBytes(FT_Face face, std::uint32_t offset)
{
    FT_Byte bytes[2] = {0, 0};
    FT_ULong length = sizeof bytes;
    // A length of 0 would ask for the table's size.
    if (FT_Load_Sfnt_Table(face, TTAG_GPOS, static_cast<FT_Long>(offset), bytes, &length) != 0)
        return 0;
    return static_cast<std::uint16_t>(bytes[0] << 8U | bytes[1]);
}

bool hasPairTable(FT_Face face)
{
    FT_ULong length = 0;
    return FT_Load_Sfnt_Table(face, TTAG_GPOS, 0, nullptr, &length) == 0 && length > 0;
}

} // namespace

std::shared_ptr<FT_LibraryRec_> fontLibrary()
{
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) != 0)
        return {};
    return {library, FT_Done_FreeType};
}

std::unique_ptr<FontFace> FontFace::open(const std::shared_ptr<FT_LibraryRec_>& library, const FontFile& file)
{
    FT_Face face = nullptr;
    if (!library || FT_New_Face(library.get(), file.path.constData(), file.index, &face) != 0)
        return {};
    return std::unique_ptr<FontFace>(new FontFace(library, face, file));
}

FontFace::FontFace(std::shared_ptr<FT_LibraryRec_> library, FT_FaceRec_* face, const FontFile& file)
    : m_library(std::move(library))
    , m_face(face)
    , m_file(file)
    , m_loadFlags(flagsOf(file, face))
{
    // A font's first table may be one of symbols.
    FT_Select_Charmap(m_face, FT_ENCODING_UNICODE);
    useVariations(file.variations);
}

FontFace::~FontFace()
{
    FT_Done_Face(m_face);
}

void FontFace::useVariations(const QByteArray& variations)
{
    FT_MM_Var* axes = nullptr;
    if (variations.isEmpty() || FT_Get_MM_Var(m_face, &axes) != 0)
        return;
    std::vector<FT_Fixed> values;
    for (FT_UInt i = 0; i < axes->num_axis; ++i)
        values.push_back(axes->axis[i].def);
    for (const QByteArray& one : variations.split(',')) {
        const QByteArray tag = one.left(4);
        // Such as "wght=600".
        if (one.size() < 6 || one[4] != '=')
            continue;
        for (FT_UInt i = 0; i < axes->num_axis; ++i) {
            const FT_Var_Axis& axis = axes->axis[i];
            // An axis is numbered by its four letters.
            if (tag == QByteArray::fromHex(QByteArray::number(static_cast<qulonglong>(axis.tag), 16)))
                values[i] = std::clamp(static_cast<FT_Fixed>(one.mid(5).toDouble() * perUnit), axis.minimum,
                                       std::max(axis.minimum, axis.maximum));
        }
    }
    FT_Set_Var_Design_Coordinates(m_face, static_cast<FT_UInt>(values.size()), values.data());
    FT_Done_MM_Var(m_library.get(), axes);
}

bool FontFace::setPixelSize(int pixels)
{
    if (pixels < 1 || pixels > 1000)
        return false;
    if (pixels == m_pixelSize)
        return true;
    const bool isDone = FT_IS_SCALABLE(m_face)
                            ? FT_Set_Pixel_Sizes(m_face, 0, static_cast<FT_UInt>(pixels)) == 0
                            : selectBitmaps(pixels);
    // Without a size a face loads nothing, rather than glyphs of the previous size.
    m_pixelSize = isDone ? pixels : 0;
    return isDone;
}

/// Takes the smallest size that is not smaller than wanted, else the largest.
bool FontFace::selectBitmaps(int pixels)
{
    int best = -1;
    const auto heightOf = [this](int strike) {
        return static_cast<double>(m_face->available_sizes[strike].y_ppem) / unitsPerPixel;
    };
    for (int strike = 0; strike < m_face->num_fixed_sizes; ++strike) {
        const bool isBetter = best < 0 || (heightOf(best) < pixels ? heightOf(strike) > heightOf(best)
                                                                   : heightOf(strike) >= pixels &&
                                                                         heightOf(strike) < heightOf(best));
        if (isBetter)
            best = strike;
    }
    if (best < 0 || heightOf(best) < 1 || FT_Select_Size(m_face, best) != 0)
        return false;
    // Emoji are taller than letters of their size; at the size's own height they match figures.
    const double drawn = FT_HAS_COLOR(m_face) ? m_face->available_sizes[best].height : 0.0;
    m_bitmapScale = pixels / std::max(drawn, heightOf(best));
    return true;
}

std::uint32_t FontFace::glyphOf(char32_t character) const
{
    return FT_Get_Char_Index(m_face, character);
}

FT_GlyphSlotRec_* FontFace::load(std::uint32_t glyph, int flags)
{
    if (m_pixelSize == 0 || FT_Load_Glyph(m_face, glyph, flags) != 0)
        return nullptr;
    if (m_file.isEmboldened)
        FT_GlyphSlot_Embolden(m_face->glyph);
    return m_face->glyph;
}

bool FontFace::hasFractions() const
{
    return m_file.isAntialiased && m_file.hinting != FontFile::Hinting::Full;
}

int FontFace::measuringFlags() const
{
    // Hinting moves edges to whole pixels, and widths with them.
    return (hasFractions() ? FT_LOAD_NO_HINTING : m_loadFlags & ~FT_LOAD_NO_BITMAP) | FT_LOAD_COLOR;
}

double FontFace::advanceOf(std::uint32_t glyph)
{
    const FT_GlyphSlot slot = load(glyph, m_loadFlags);
    if (!slot)
        return 0.0;
    // The exact advance is that of the outline as designed: emboldening widens it, and bitmaps have none.
    const bool isExact = hasFractions() && FT_IS_SCALABLE(m_face) && !m_file.isEmboldened;
    const double advance = isExact ? static_cast<double>(slot->linearHoriAdvance) / perUnit
                                   : m_bitmapScale * static_cast<double>(slot->advance.x) / unitsPerPixel;
    // A broken font must not push the rest out of the picture.
    return std::clamp(hasFractions() ? advance : std::round(advance), 0.0, widest * m_pixelSize);
}

double FontFace::kerningOf(std::uint32_t left, std::uint32_t right)
{
    if (m_pixelSize == 0 || !FT_IS_SCALABLE(m_face))
        return 0.0;
    double pixels = 0.0;
    // A font that has both tables means the newer one, which the library does not read.
    if (hasPairTable(m_face)) {
        if (!m_kerning)
            m_kerning = std::make_unique<PairKerning>(
                [face = m_face](std::uint32_t offset) { return kerningBytes(face, offset); });
        const double em = std::max<double>(1.0, m_face->units_per_EM);
        pixels = m_kerning->between(left, right) * m_pixelSize / em;
    } else if (FT_Vector found = {}; FT_Get_Kerning(m_face, left, right, FT_KERNING_UNFITTED, &found) == 0) {
        pixels = static_cast<double>(found.x) / unitsPerPixel;
    }
    return std::clamp<double>(hasFractions() ? pixels : std::round(pixels), -m_pixelSize, m_pixelSize);
}

double FontFace::capHeight()
{
    const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(m_face, FT_SFNT_OS2));
    double height = -boxOf(glyphOf(U'H')).top();
    // Earlier versions of the table lack the field; 0xffff stands for no table.
    if (os2 && os2->version >= 2 && os2->version != 0xffff && os2->sCapHeight > 0 && FT_IS_SCALABLE(m_face))
        height =
            static_cast<double>(FT_MulFix(os2->sCapHeight, m_face->size->metrics.y_scale)) / unitsPerPixel;
    return std::clamp(height, 0.0, 2.0 * m_pixelSize);
}

QRectF FontFace::boxOf(std::uint32_t glyph)
{
    const FT_GlyphSlot slot = load(glyph, m_loadFlags);
    if (!slot)
        return {};
    const double scale = m_bitmapScale / unitsPerPixel;
    const auto pixels = [scale](FT_Pos length) { return scale * static_cast<double>(length); };
    const FT_Glyph_Metrics& box = slot->metrics;
    const QRectF found(pixels(box.horiBearingX), -pixels(box.horiBearingY), pixels(box.width),
                       pixels(box.height));
    // Pictures are made as large as this box.
    const double reach = widest * m_pixelSize;
    return found & QRectF(-reach, -reach, 2 * reach, 2 * reach);
}

std::optional<DrawnGlyph> FontFace::draw(std::uint32_t glyph, double fraction)
{
    const FT_GlyphSlot slot = load(glyph, m_loadFlags);
    if (!slot)
        return std::nullopt;
    if (slot->format == FT_GLYPH_FORMAT_OUTLINE) {
        // A broken font may ask for gigabytes.
        const double reach = unitsPerPixel * widest * m_pixelSize;
        FT_BBox box = {};
        FT_Outline_Get_CBox(&slot->outline, &box);
        const auto isFar = [reach](FT_Pos place) { return std::abs(static_cast<double>(place)) > reach; };
        if (isFar(box.xMin) || isFar(box.xMax) || isFar(box.yMin) || isFar(box.yMax))
            return std::nullopt;
        FT_Outline_Translate(&slot->outline, std::lround(fraction * unitsPerPixel), 0);
    }
    const FT_Render_Mode mode = m_file.isAntialiased ? FT_RENDER_MODE_NORMAL : FT_RENDER_MODE_MONO;
    if (slot->format != FT_GLYPH_FORMAT_BITMAP && FT_Render_Glyph(slot, mode) != 0)
        return std::nullopt;
    return glyphOfBitmap(*slot, m_bitmapScale);
}

QRectF FontFace::addOutline(std::uint32_t glyph, QPointF pen, std::vector<OutlineStep>& steps)
{
    // Not hinted: that is for one size in pixels, and a drawing is shown in any.
    const FT_GlyphSlot slot = load(glyph, FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP);
    if (!slot || slot->format != FT_GLYPH_FORMAT_OUTLINE)
        return {};
    return addOutlineOf(slot->outline, pen, steps);
}

} // namespace quindle
