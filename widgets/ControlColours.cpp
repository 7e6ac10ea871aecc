#include "widgets/ControlColours.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QWidget>

#include "widgets/PaletteMix.h"

namespace quindle {

namespace {

/// Only the window's colour, since a palette that was set hides the desktop's changes.
void setOutlineSource(QWidget& box, const QColor& source)
{
    QPalette own;
    if (source.isValid())
        own.setColor(QPalette::Window, source);
    box.setPalette(own);
}

} // namespace

QColor hintColour(const QPalette& palette)
{
    constexpr double readable = 4.5;
    const QColor base = palette.color(QPalette::Base);
    const QColor hint = palette.color(QPalette::PlaceholderText);
    const QColor seen = mixed(hint, base, double(hint.alphaF()));
    return isDark(base) && contrast(seen, base) < readable ? quietText(palette.color(QPalette::Text), base)
                                                           : hint;
}

QColor outlineSource(const QPalette& palette)
{
    constexpr double outlineShare = 0.6;
    // The outline of the toolkit's own style is this much darker than the window, in percent.
    constexpr int darkening = 127;
    const QColor window = palette.color(QPalette::Window);
    if (!isDark(window) && !hasStrongContrast(palette))
        return {};
    return mixed(palette.color(QPalette::WindowText), window, outlineShare).lighter(darkening);
}

void makeBoxesVisible(const QWidget& whole, const QPalette& palette)
{
    const QColor source = outlineSource(palette);
    for (auto* box : whole.findChildren<QCheckBox*>())
        setOutlineSource(*box, source);
    for (auto* button : whole.findChildren<QRadioButton*>())
        setOutlineSource(*button, source);
    // Fields have another colour than what they stand on, except where both are as dark or light as can be.
    const QColor sourceOfFields = hasStrongContrast(palette) ? source : QColor();
    for (auto* field : whole.findChildren<QLineEdit*>())
        setOutlineSource(*field, sourceOfFields);
    for (auto* field : whole.findChildren<QAbstractSpinBox*>())
        setOutlineSource(*field, sourceOfFields);
}

} // namespace quindle
