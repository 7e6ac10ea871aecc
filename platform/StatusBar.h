#pragma once

#include <memory>
#include <optional>

#include <QString>

#include "platform/ShownItem.h"

namespace quindle {

class Image;
class StatusMenu;

/// The item in the system's status bar (on Linux: the desktop's tray). Setting a value twice, or setting one
/// that is replaced before the main loop runs again, shows as one change at most. No setter waits for the
/// desktop or fails: while there is no tray the item keeps its values, and shows them once one comes. Main
/// thread only.
class StatusItem
{
public:
    virtual ~StatusItem() = default;

    /// The title, of any length and content; shown literally, and cut with an ellipsis where it does not fit.
    /// Returns what was set last, uncut; empty before that.
    virtual void setTitle(const QString& title) = 0;
    virtual QString title() const = 0;

    /// The image; null for none, as before one is set.
    virtual void setImage(std::shared_ptr<Image> image) = 0;
    virtual std::shared_ptr<Image> image() const = 0;

    /// The title's font: the menu bar's own, in this size (points).
    virtual void setMenuBarFontSize(double points) = 0;

    /// What a host without room for the title draws when there is no image: the whole-number percentage;
    /// empty for nothing.
    virtual void setFallbackText(const QString& text) = 0;

    /// Whether that text also says that the computer is charging or on external power; false at first. Does
    /// nothing where hosts have room for the title.
    virtual void setFallbackOnPower(bool /*hasPower*/) {}

    /// The tool tip's text under the title, plain; lines are separated by line feeds. Empty for the title
    /// alone.
    virtual void setToolTipText(const QString& text) = 0;

    /// The menu that hangs from the item; null for none.
    /// The caller keeps it alive as long as the item.
    virtual void setMenu(StatusMenu* menu) = 0;

    /// What the panel shows of it now; nothing where that is not known.
    virtual std::optional<ShownItem> shownItem() { return std::nullopt; }

    /// Whether the item asks to be looked at; false at first.
    /// Does nothing where items cannot.
    virtual void setNeedsAttention(bool /*needed*/) {}
};

/// The length that lets an item be as wide as its contents.
inline constexpr double variableStatusItemLength = -1.0;

/// Where status items live. Main thread only.
class StatusBar
{
public:
    virtual ~StatusBar() = default;

    /// A new item of that length in points, or of variable length; never null.
    /// A host that decides on widths itself ignores the length.
    /// The item leaves the bar when it is destroyed, before the bar is.
    virtual std::unique_ptr<StatusItem> statusItemWithLength(double length) = 0;
};

} // namespace quindle
