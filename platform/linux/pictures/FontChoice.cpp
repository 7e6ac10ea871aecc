#include "platform/linux/pictures/FontChoice.h"

#include <QStringList>
#include <fontconfig/fontconfig.h>

namespace quindle {

namespace {

/// About the size of titles. Settings may differ by size, but not within a panel's sizes.
constexpr double usualPixelSize = 16.0;

/// No family's name is that long, and settings can hold anything.
constexpr qsizetype longestFamily = 200;

struct PatternDestroy
{
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};

using PatternPtr = std::unique_ptr<FcPattern, PatternDestroy>;

struct CharSetDestroy
{
    void operator()(FcCharSet* characters) const { FcCharSetDestroy(characters); }
};

using CharSetPtr = std::unique_ptr<FcCharSet, CharSetDestroy>;

QByteArray textOf(FcPattern* pattern, const char* object)
{
    FcChar8* text = nullptr;
    const bool isThere = FcPatternGetString(pattern, object, 0, &text) == FcResultMatch;
    return isThere ? QByteArray(reinterpret_cast<const char*>(text)) : QByteArray();
}

int numberOf(FcPattern* pattern, const char* object, int otherwise)
{
    int number = 0;
    return FcPatternGetInteger(pattern, object, 0, &number) == FcResultMatch ? number : otherwise;
}

bool isSet(FcPattern* pattern, const char* object, bool otherwise)
{
    FcBool value = FcFalse;
    return FcPatternGetBool(pattern, object, 0, &value) == FcResultMatch ? value == FcTrue : otherwise;
}

FontFile::Hinting hintingOf(FcPattern* pattern)
{
    const int style = numberOf(pattern, FC_HINT_STYLE, FC_HINT_FULL);
    if (!isSet(pattern, FC_HINTING, true) || style == FC_HINT_NONE)
        return FontFile::Hinting::None;
    return style == FC_HINT_SLIGHT ? FontFile::Hinting::Slight : FontFile::Hinting::Full;
}

FontFile fontOf(FcPattern* pattern)
{
    return {.path = textOf(pattern, FC_FILE),
            // The highest bit marks a pattern for all instances of a variable font.
            .index = numberOf(pattern, FC_INDEX, 0) & 0x7fffffff,
            .variations = textOf(pattern, FC_FONT_VARIATIONS),
            .hinting = hintingOf(pattern),
            .isAntialiased = isSet(pattern, FC_ANTIALIAS, true),
            .usesAutohinter = isSet(pattern, FC_AUTOHINT, false),
            .isEmboldened = isSet(pattern, FC_EMBOLDEN, false)};
}

PatternPtr patternFor(const QString& family, char32_t character)
{
    PatternPtr pattern(FcPatternCreate());
    const QByteArray name = family.left(longestFamily).toUtf8();
    if (!name.isEmpty())
        FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.constData()));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, FC_WEIGHT_DEMIBOLD);
    FcPatternAddInteger(pattern.get(), FC_SLANT, FC_SLANT_ROMAN);
    FcPatternAddDouble(pattern.get(), FC_PIXEL_SIZE, usualPixelSize);
    if (character != 0) {
        const CharSetPtr needed(FcCharSetCreate());
        FcCharSetAddChar(needed.get(), character);
        FcPatternAddCharSet(pattern.get(), FC_CHARSET, needed.get());
    }
    return pattern;
}

bool hasCharacter(FcPattern* pattern, char32_t character)
{
    FcCharSet* characters = nullptr;
    return FcPatternGetCharSet(pattern, FC_CHARSET, 0, &characters) == FcResultMatch &&
           FcCharSetHasChar(characters, character) == FcTrue;
}

/// Words at the end of a font's name that describe its style, in upper or lower case.
bool isStyleWord(const QString& word)
{
    constexpr QLatin1StringView words(
        " regular roman book medium bold semi-bold semibold demi-bold demibold ultra-bold "
        "extra-bold extrabold heavy black light ultra-light extra-light extralight "
        "semi-light semilight thin italic oblique condensed semi-condensed ultra-condensed "
        "extra-condensed expanded semi-expanded normal ");
    // With its blanks, or a part of a word would do.
    return words.contains(QString(u' ' + word + u' '), Qt::CaseInsensitive);
}

bool isSize(const QString& word)
{
    QString number = word;
    if (number.endsWith(QLatin1String("px")))
        number.chop(2);
    bool isNumber = false;
    number.toDouble(&isNumber);
    return isNumber;
}

} // namespace

FontChoice::FontChoice()
    // Not the process's shared configuration, which would stay in memory.
    : m_config(FcInitLoadConfigAndFonts())
{
}

void FontChoice::Destroy::operator()(_FcConfig* config) const
{
    FcConfigDestroy(config);
}

std::optional<FontFile> FontChoice::font(const QString& family, char32_t character) const
{
    if (!m_config)
        return std::nullopt;
    const PatternPtr pattern = patternFor(family, character);
    // The user's rules first (another family, another hinting), then what they leave open.
    FcConfigSubstitute(m_config.get(), pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultNoMatch;
    const PatternPtr match(FcFontMatch(m_config.get(), pattern.get(), &result));
    // The best match may not have the character.
    if (!match || (character != 0 && !hasCharacter(match.get(), character)))
        return std::nullopt;
    FontFile font = fontOf(match.get());
    return font.path.isEmpty() ? std::nullopt : std::optional(std::move(font));
}

QString familyOfFontName(const QString& name)
{
    QStringList words = name.left(longestFamily).simplified().split(u' ', Qt::SkipEmptyParts);
    if (!words.isEmpty() && isSize(words.last()))
        words.removeLast();
    // A comma separates families; the first is used.
    const qsizetype comma = words.join(u' ').indexOf(u',');
    if (comma >= 0)
        return words.join(u' ').left(comma).trimmed();
    // One word always stays: a family may itself be called "Black".
    while (words.size() > 1 && isStyleWord(words.last()))
        words.removeLast();
    return words.join(u' ');
}

} // namespace quindle
