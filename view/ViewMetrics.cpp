#include "view/ViewMetrics.h"

#include <algorithm>

#include <QFontInfo>
#include <QFontMetrics>
#include <QWidget>

namespace quindle {

namespace {

QFont scaled(const QFont& font, double factor)
{
    QFont other = font;
    other.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
    return other;
}

} // namespace

ViewMetrics::ViewMetrics(const QWidget& widget)
{
    const QFont& font = widget.font();
    const int line = widget.fontMetrics().height();
    // All in lines of text, so that the view keeps its proportions at any size of font.
    width = line * 17;
    margin = qRound(line * 0.85);
    groupGap = qRound(line * 0.8);
    rowGap = std::max(1, qRound(line * 0.15));
    radius = qRound(line * 0.5);
    large = scaled(font, 2.6);
    medium = scaled(font, 1.35);
    small = scaled(font, 0.93);
    heading = small;
    heading.setWeight(QFont::DemiBold);
}

} // namespace quindle
