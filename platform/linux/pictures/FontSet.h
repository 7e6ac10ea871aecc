#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QSet>
#include <QString>

#include "platform/linux/pictures/FontFace.h"

namespace quindle {

/// The demi-bold font of a family and those with the characters it lacks, by number. Files are opened when a
/// font is asked for; a font that cannot be used is logged once.
class FontSet
{
public:
    /// The number of the family's own font, also used for characters that no font has.
    static constexpr std::size_t familyFont = 0;

    /// Forgets the fonts of the previous family, and their numbers.
    void setFamily(const QString& family);

    /// The font of that number in that size; null when none can be used.
    FontFace* face(std::size_t font, int pixelSize);

    /// The number of the font that has the character.
    std::size_t fontFor(char32_t character, int pixelSize);

    /// The number of an open font.
    std::size_t numberOf(const FT_FaceRec_* face) const;

    /// How many there are.
    std::size_t size() const { return m_fonts.size(); }

    /// Whether a font that was open before, since the family was set or under the ones before it, cannot be
    /// opened any more.
    bool hasLostOne() const { return m_hasLostOne; }

    /// Closes all files until they are needed again.
    void rest();

private:
    struct Font
    {
        FontFile file;
        std::unique_ptr<FontFace> face;
        bool isBroken = false;
    };

    std::optional<FontFile> chosen(const QString& family, char32_t character = 0);
    void findFamily();
    FontFace* opened(Font& font);
    bool has(std::size_t font, char32_t character, int pixelSize);
    std::size_t fallbackFor(char32_t character, int pixelSize);
    std::size_t numberOf(const FontFile& file);

    QString m_family;
    std::unique_ptr<FontChoice> m_choice; ///< while fonts are being looked for
    std::shared_ptr<FT_LibraryRec_> m_library;
    std::vector<Font> m_fonts;
    std::map<char32_t, std::size_t> m_fallbacks;
    QSet<QByteArray> m_opened; ///< paths
    bool m_hasLostOne = false;
};

} // namespace quindle
