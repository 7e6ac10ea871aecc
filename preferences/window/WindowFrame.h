#pragma once

#include <optional>
#include <vector>

#include <QRect>
#include <QString>

namespace quindle {

/// A window's frame and the screen it was on, in device-independent pixels from the desktop's top left.
struct WindowFrame
{
    QRect frame;  ///< with the window manager's decorations
    QRect screen; ///< without panels

    friend bool operator==(const WindowFrame&, const WindowFrame&) = default;
};

/// Eight whole numbers, "x y width height" of the frame and the same of the screen.
QString frameText(const WindowFrame& frame);

/// Nothing for a text of any other form, for empty sizes and for numbers that no desktop has.
std::optional<WindowFrame> frameFromText(const QString& text);

/// Where a saved frame goes on the screens there are now: wholly onto the screen it covers most of. When the
/// screen it was on is gone, to the same place of the first one. A frame that is larger than its screen
/// begins at the screen's top left, where its title bar can be reached. The size is kept.
QRect placedFrame(const WindowFrame& saved, const std::vector<QRect>& screens);

/// A frame of that size in the middle of a screen.
QRect centredFrame(const QSize& size, const QRect& screen);

} // namespace quindle
