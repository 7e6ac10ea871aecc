#include "platform/linux/pictures/ShapingNeed.h"

#include <algorithm>

#include <QChar>

namespace quindle {

namespace {

constexpr char32_t zeroWidthJoiner = 0x200d;

/// No more of a line is ever seen.
constexpr qsizetype mostUnits = 1000;

/// Scripts that are written from left to right with one glyph for each character.
bool isPlainScript(char32_t c)
{
    switch (QChar::script(c)) {
    case QChar::Script_Unknown:
    case QChar::Script_Inherited:
    case QChar::Script_Common:
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
    case QChar::Script_Armenian:
    case QChar::Script_Georgian:
    case QChar::Script_Ethiopic:
    case QChar::Script_Cherokee:
    case QChar::Script_CanadianAboriginal:
    case QChar::Script_Ogham:
    case QChar::Script_Runic:
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Bopomofo:
    case QChar::Script_Yi:
    case QChar::Script_Braille:
        return true;
    case QChar::Script_Hangul:
        return c < 0x1100 || (c > 0x11ff && c < 0xa960) || (c > 0xa97f && c < 0xd7b0); // no single parts
    default:
        return false;
    }
}

bool isRightToLeft(char32_t c)
{
    switch (QChar::direction(c)) {
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirAN:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirRLI:
        return true;
    default:
        return false;
    }
}

/// What joins, tints or pairs the characters of an emoji.
bool joinsEmoji(char32_t c)
{
    // Beside the joiner: skin tones, the letters of flags, the frame of a key.
    return c == zeroWidthJoiner || (c >= 0x1f3fb && c <= 0x1f3ff) || (c >= 0x1f1e6 && c <= 0x1f1ff) ||
           c == 0x20e3;
}

/// Selects one of two forms of the preceding character; fonts have only one.
bool isVariationSelector(char32_t c)
{
    return (c >= 0xfe00 && c <= 0xfe0f) || (c >= 0xe0100 && c <= 0xe01ef);
}

bool needsShaping(char32_t c)
{
    if (isVariationSelector(c))
        return false;
    return QChar::isMark(c) || isRightToLeft(c) || joinsEmoji(c) || !isPlainScript(c);
}

bool isInvisible(char32_t c)
{
    const QChar::Category category = QChar::category(c);
    return category == QChar::Other_Control || category == QChar::Other_Format || isVariationSelector(c);
}

} // namespace

bool needsShaping(std::u32string_view text)
{
    return std::any_of(text.begin(), text.end(), [](char32_t c) { return needsShaping(c); });
}

std::u32string drawnCharacters(const QString& text)
{
    // An accented letter in one piece is a glyph of most fonts; in two pieces it needs shaping.
    const QString composed = text.left(mostUnits).normalized(QString::NormalizationForm_C);
    std::u32string characters = composed.toStdU32String();
    std::erase_if(characters, [](char32_t c) { return QChar::category(c) == QChar::Other_Control; });
    // They control how letters join. Where none do, they would be drawn as boxes.
    if (!needsShaping(std::u32string_view(characters)))
        std::erase_if(characters, isInvisible);
    return characters;
}

} // namespace quindle
