#include "widgets/PaletteMix.h"

#include <algorithm>
#include <cmath>

#include <QPalette>
#include <QWidget>

namespace quindle {

namespace {

constexpr double quietestShare = 0.6;
// The least contrasts of readable text in the accessibility guidelines, and in their enhanced form.
constexpr double readableContrast = 4.5;
constexpr double strongContrast = 7;

double linear(double channel)
{
    // As sRGB defines it, and the guidelines use it.
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

QColor mixed(const QColor& text, const QColor& background, double share)
{
    const auto channel = [share](float front, float back) {
        return static_cast<float>(double(front) * share + double(back) * (1 - share));
    };
    return QColor::fromRgbF(channel(text.redF(), background.redF()),
                            channel(text.greenF(), background.greenF()),
                            channel(text.blueF(), background.blueF()));
}

double contrast(const QColor& first, const QColor& second)
{
    const double one = luminance(first);
    const double other = luminance(second);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

namespace {

QColor quietWith(double leastContrast, const QColor& text, const QColor& background)
{
    // Palettes differ too much for one share: what is quiet on one is unreadable on another.
    for (double share = quietestShare; share < 1; share += 0.05) {
        const QColor color = mixed(text, background, share);
        if (contrast(color, background) >= leastContrast)
            return color;
    }
    return text;
}

} // namespace

QColor quietText(const QColor& text, const QColor& background)
{
    return quietWith(readableContrast, text, background);
}

bool hasStrongContrast(const QPalette& palette)
{
    const QColor hint = palette.color(QPalette::PlaceholderText);
    return hint.alpha() == 255 && hint.rgb() == palette.color(QPalette::Text).rgb();
}

QColor quietText(const QPalette& palette, const QColor& text, const QColor& background)
{
    return quietWith(hasStrongContrast(palette) ? strongContrast : readableContrast, text, background);
}

QColor quietTextOf(const QWidget& widget)
{
    return quietText(widget.palette(), textOf(widget), backgroundOf(widget));
}

double lineShareFor(const QPalette& palette, double share)
{
    constexpr double strongShare = 0.6;
    return hasStrongContrast(palette) ? std::max(share, strongShare) : share;
}

QColor lineOf(const QWidget& widget, double share)
{
    return mixed(textOf(widget), backgroundOf(widget), lineShareFor(widget.palette(), share));
}

bool isDark(const QColor& background)
{
    return background.lightness() < 128;
}

QColor backgroundOf(const QWidget& widget)
{
    return widget.palette().color(widget.backgroundRole());
}

QColor textOf(const QWidget& widget)
{
    return widget.palette().color(widget.foregroundRole());
}

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
