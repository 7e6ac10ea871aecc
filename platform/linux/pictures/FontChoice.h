#pragma once

#include <memory>
#include <optional>

#include <QByteArray>
#include <QString>

struct _FcConfig; // NOLINT(bugprone-reserved-identifier): the library's name

namespace quindle {

/// A font of the system's, and how its settings want it drawn.
struct FontFile
{
    enum class Hinting {
        None,
        Slight, ///< in height only; glyphs stand between pixels
        Full,
    };

    QByteArray path;
    int index = 0;         ///< of the face in the file; above bit 16 of the named instance of a variable one
    QByteArray variations; ///< of a variable one, "wght=600,wdth=100"
    Hinting hinting = Hinting::Slight;
    bool isAntialiased = true;
    bool usesAutohinter = false;
    bool isEmboldened = false;

    friend bool operator==(const FontFile&, const FontFile&) = default;
};

/// The system's fonts and settings for them, as they are when this is made. Making one reads some fifty
/// files, and it holds the list of all fonts, so it is kept for the drawing of one picture only.
class FontChoice
{
public:
    FontChoice();

    /// The demi-bold font of that family, or of the one that stands in for it; an empty name is the system's
    /// usual family. With a character: the font that comes nearest among those that have it. Nothing where
    /// there is no such font.
    std::optional<FontFile> font(const QString& family, char32_t character = 0) const;

private:
    struct Destroy
    {
        void operator()(_FcConfig* config) const;
    };

    std::unique_ptr<_FcConfig, Destroy> m_config;
};

/// The family in the name of a font with style and size, as desktops write it in their settings: "Ubuntu Sans
/// Semi-Bold 11" is "Ubuntu Sans", "Noto Sans, 10" is "Noto Sans". Empty where there is none.
QString familyOfFontName(const QString& name);

} // namespace quindle
