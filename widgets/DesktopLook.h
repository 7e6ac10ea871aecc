#pragma once

#include <QPalette>
#include <QString>

#include "common/DesktopWishes.h"

namespace quindle {

/// Makes all windows of the process look as the desktop's user wishes, where the toolkit does not by itself,
/// and keeps words whole where letters join. Needs a QApplication, with the language that is shown.
class DesktopLook
{
public:
    enum class Colours {
        OfToolkit, ///< the toolkit follows the desktop's colours itself
        ByWishes,
    };

    explicit DesktopLook(Colours colours);

    /// Also for windows that are open.
    void follow(const DesktopWishes& wishes);

private:
    void wearPalette(const DesktopWishes& wishes);
    void setStill(bool isStill);
    void wearStyle();

    Colours m_colours;
    QString m_toolkitsStyle; ///< the style that is worn with changes; empty while it is worn as it is
    bool m_isStill = false;
};

/// Windows of a desktop without colours of its own.
QPalette paletteFor(const DesktopWishes& wishes);

} // namespace quindle
