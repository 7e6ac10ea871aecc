#include "platform/linux/pictures/Eliding.h"

#include <vector>

#include <QTextBoundaryFinder>

namespace quindle {

namespace {

constexpr QChar ellipsis(0x2026);

/// No line shows more of a text.
constexpr qsizetype mostUnits = 1000;

/// The places after each whole character.
std::vector<qsizetype> endsIn(const QString& text)
{
    std::vector<qsizetype> ends;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary())
        ends.push_back(end);
    return ends;
}

} // namespace

QString elidedTo(const QString& text, double mostWidth, const std::function<double(const QString&)>& width)
{
    if (text.size() <= mostUnits && width(text) <= mostWidth)
        return text;
    const std::vector<qsizetype> ends = endsIn(text.left(mostUnits));
    // Cut between whole characters: half an emoji would be another one.
    const auto beginning = [&](std::size_t characters) {
        return (characters == 0 ? QString() : text.left(ends[characters - 1])) + ellipsis;
    };
    std::size_t fits = 0;
    std::size_t tooLong = ends.size() + 1;
    // By bisection, since each width costs a layout.
    while (fits + 1 < tooLong) {
        const std::size_t middle = (fits + tooLong) / 2;
        if (width(beginning(middle)) <= mostWidth)
            fits = middle;
        else
            tooLong = middle;
    }
    return beginning(fits);
}

} // namespace quindle
