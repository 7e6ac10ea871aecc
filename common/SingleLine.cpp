#include "common/SingleLine.h"

#include <QTextBoundaryFinder>

namespace quindle {

namespace {

// What a person counts as one character may carry any number of combining marks; this bounds them.
constexpr qsizetype unitsPerCharacter = 8;

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
           c == QChar::ParagraphSeparator;
}

/// Where the character after the first `count` ones begins; -1 if the text has no more than that.
qsizetype positionAfter(const QString& text, int count)
{
    const qsizetype limit = count * unitsPerCharacter;
    // Only the part that matters: the text may be megabytes long.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.left(limit + 1));
    qsizetype position = 0;
    for (int i = 0; i < count && position >= 0; ++i)
        position = finder.toNextBoundary();
    if (position >= 0 && position <= limit)
        return position < text.size() ? position : -1;
    return text.size() > limit ? limit : -1;
}

} // namespace

QString singleLine(const QString& text)
{
    QString line = text;
    for (QChar& c : line) {
        if (isControl(c))
            c = QLatin1Char(' ');
    }
    return line;
}

QString elided(const QString& text, int length)
{
    // No text has more characters than units, so most need no search.
    if (text.size() <= length || positionAfter(text, length) < 0)
        return text;
    qsizetype cut = positionAfter(text, length - 1);
    // Half a character cannot be sent over the bus.
    if (cut > 0 && text.at(cut - 1).isHighSurrogate())
        --cut;
    return text.left(cut) + QChar(0x2026);
}

} // namespace quindle
