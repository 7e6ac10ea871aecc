#pragma once

namespace quindle {

/// How the user of a desktop wants all windows to look.
struct DesktopWishes
{
    bool isDark = false; ///< light text on dark
    bool hasStrongContrast = false;
    bool isStill = false; ///< nothing moves by itself

    friend bool operator==(const DesktopWishes&, const DesktopWishes&) = default;
};

} // namespace quindle
