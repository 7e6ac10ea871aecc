#include "platform/linux/pictures/FontSet.h"

#include <algorithm>

#include <malloc.h>

#include <QLoggingCategory>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(logFonts, "quindle.statusitem.pictures", QtWarningMsg)

constexpr std::size_t mostFallbacks = 1024;

} // namespace

void FontSet::setFamily(const QString& family)
{
    m_family = family;
    m_fonts.clear();
    m_fallbacks.clear();
    m_hasLostOne = false;
}

FontFace* FontSet::face(std::size_t font, int pixelSize)
{
    if (m_fonts.empty())
        findFamily();
    if (font >= m_fonts.size())
        return nullptr;
    FontFace* face = opened(m_fonts[font]);
    return face && face->setPixelSize(pixelSize) ? face : nullptr;
}

/// The family's font, or where that cannot be used the system's usual one.
void FontSet::findFamily()
{
    for (const QString& family : {m_family, QString()}) {
        const auto file = chosen(family);
        Font font{file.value_or(FontFile()), {}, !file};
        const bool isUsable = opened(font) != nullptr;
        m_fonts.clear();
        // Kept even if it cannot be used, or each title would look for a font again.
        m_fonts.push_back(std::move(font));
        if (isUsable)
            return;
    }
}

FontFace* FontSet::opened(Font& font)
{
    if (font.face || font.isBroken)
        return font.face.get();
    if (!m_library)
        m_library = fontLibrary();
    font.face = FontFace::open(m_library, font.file);
    font.isBroken = !font.face;
    if (font.isBroken) {
        qCWarning(logFonts) << "no usable font in" << font.file.path;
        // It may be back in a moment: packages are replaced, and servers restarted.
        m_hasLostOne = m_hasLostOne || m_opened.contains(font.file.path);
    } else {
        m_opened.insert(font.file.path);
    }
    return font.face.get();
}

std::optional<FontFile> FontSet::chosen(const QString& family, char32_t character)
{
    if (!m_choice)
        m_choice = std::make_unique<FontChoice>();
    return m_choice->font(family, character);
}

bool FontSet::has(std::size_t font, char32_t character, int pixelSize)
{
    FontFace* found = face(font, pixelSize);
    return found && found->glyphOf(character) != 0;
}

std::size_t FontSet::fontFor(char32_t character, int pixelSize)
{
    // The family first, so that the letters of a title look alike.
    if (has(familyFont, character, pixelSize))
        return familyFont;
    const auto known = m_fallbacks.find(character);
    if (known != m_fallbacks.end())
        return known->second;
    if (m_fallbacks.size() >= mostFallbacks)
        m_fallbacks.clear();
    const std::size_t found = fallbackFor(character, pixelSize);
    m_fallbacks.emplace(character, found);
    return found;
}

std::size_t FontSet::fallbackFor(char32_t character, int pixelSize)
{
    const auto file = chosen(m_family, character);
    const std::size_t font = file ? numberOf(*file) : familyFont;
    // A character that no font has becomes the family's sign for a missing glyph.
    return has(font, character, pixelSize) ? font : familyFont;
}

std::size_t FontSet::numberOf(const FontFile& file)
{
    const auto isSame = [&file](const Font& font) { return font.file == file; };
    const auto known = std::find_if(m_fonts.begin(), m_fonts.end(), isSame);
    if (known != m_fonts.end())
        return static_cast<std::size_t>(known - m_fonts.begin());
    m_fonts.push_back({file, {}, false});
    return m_fonts.size() - 1;
}

std::size_t FontSet::numberOf(const FT_FaceRec_* face) const
{
    const auto isIt = [face](const Font& font) { return font.face && font.face->face() == face; };
    const auto found = std::find_if(m_fonts.begin(), m_fonts.end(), isIt);
    return found == m_fonts.end() ? familyFont : static_cast<std::size_t>(found - m_fonts.begin());
}

void FontSet::rest()
{
    for (Font& font : m_fonts)
        font.face.reset();
    m_library.reset();
    if (!m_choice)
        return;
    // The list of all fonts was a quarter of a megabyte in small pieces, which the allocator would keep.
    m_choice.reset();
    malloc_trim(0);
}

} // namespace quindle
