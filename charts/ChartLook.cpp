#include "charts/ChartLook.h"

#include <QWidget>

#include "widgets/PaletteMix.h"
#include "widgets/QuietLabel.h"

namespace quindle {

namespace {

// The least contrast of lines and signs in the accessibility guidelines.
constexpr double visibleContrast = 3;
constexpr double gridShare = 0.09;

QColor visible(const QColor& colour, const QColor& text, const QColor& background)
{
    // Towards the text, which can be read on any background.
    for (double share = 0; share < 1; share += 0.1) {
        const QColor moved = mixed(text, colour, share);
        if (contrast(moved, background) >= visibleContrast)
            return moved;
    }
    return text;
}

} // namespace

ChartLook chartLook(const QWidget& widget)
{
    const QColor background = backgroundOf(widget);
    const QColor text = textOf(widget);
    const QColor green = isDark(background) ? QColor(0x46, 0xcb, 0x69) : QColor(0x28, 0xa7, 0x4d);
    return {.font = quietFont(widget.font()),
            .background = background,
            .text = text,
            .quiet = quietTextOf(widget),
            .grid = mixed(text, background, gridShare),
            .wear = visible(green, text, background),
            .charge =
                visible(widget.palette().color(QPalette::Active, QPalette::Highlight), text, background)};
}

QColor inkColour(const ChartLook& look, ChartInk ink)
{
    return ink == ChartInk::Wear ? look.wear : look.charge;
}

} // namespace quindle
