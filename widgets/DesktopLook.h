#pragma once

#include <QPalette>
#include <QString>

#include "common/DesktopWishes.h"

namespace quindle {

/// Makes all windows of the process look as the desktop's user wishes, where the toolkit does not by itself.
/// Needs a QApplication.
class DesktopLook
{
public:
    enum class Colours {
        OfToolkit, ///< the toolkit follows the desktop's colours itself
        ByWishes,
    };

    explicit DesktopLook(Colours colours)
        : m_colours(colours)
    {
    }

    /// Also for windows that are open.
    void follow(const DesktopWishes& wishes);

private:
    void wearPalette(const DesktopWishes& wishes);
    void setStill(bool isStill);

    Colours m_colours;
    QString m_livelyStyle; ///< the style that nothing moves in now; empty while it may
};

/// Windows of a desktop without colours of its own.
QPalette paletteFor(const DesktopWishes& wishes);

} // namespace quindle
