#include "widgets/WindowColours.h"

#include "widgets/PaletteMix.h"

namespace quindle {

QPalette::ColorRole contentRole(const QPalette& palette)
{
    const bool baseIsLighter =
        palette.color(QPalette::Base).lightnessF() >= palette.color(QPalette::Window).lightnessF();
    return baseIsLighter ? QPalette::Base : QPalette::Window;
}

QColor toolbarColour(const QPalette& palette, bool isTransparent)
{
    constexpr double textShare = 0.05;
    const QPalette::ColorRole content = contentRole(palette);
    if (isTransparent)
        return palette.color(content);
    const QColor window = palette.color(QPalette::Window);
    return content == QPalette::Base ? window : mixed(palette.color(QPalette::WindowText), window, textShare);
}

} // namespace quindle
