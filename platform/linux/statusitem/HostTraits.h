#pragma once

#include <QString>

#include "platform/linux/os/Colour.h"

namespace quindle {

/// How much room the host of status items gives the title.
enum class HostShape {
    Label,  ///< the host writes the title beside the icon itself
    Wide,   ///< the host shows wide pictures in full width, so the title is drawn into the picture
    Square, ///< only a square icon is seen; the title is in the tool tip and the menu
};

/// The peculiarities of one host.
struct HostTraits
{
    HostShape shape = HostShape::Square;
    bool takesLabel =
        true; ///< false: the label stays empty, so that the title does not show where it is not wanted
    bool needsIconFile = false; ///< only icons in files are shown, pixels sent over the bus are ignored
    bool showsToolTipTitleOnly =
        false; ///< of a tool tip it shows only the first text, as markup if it looks like it
    bool escapesToolTipTitle = false; ///< of a tool tip it parses only the second text as markup
    bool coloursDrawings = false;     ///< a drawing in a file is shown in the colour of the panel's text
    bool labelHidesIcon =
        false; ///< even an empty label does; a wide picture is shown if icon-high ones are there
    bool drawsSmall = false;    ///< a drawing gets 16 pixels, which are too few for one made on 22
    bool squaresOnly = false;   ///< a wide picture is shrunk until its text is a smudge
    bool showsNumber = false;   ///< the charge as a number is preferred to the icon
    bool neverScales = false;   ///< it needs a picture of each size that it may have room for
    bool cutsTallMenus = false; ///< the last rows of a menu higher than the screen cannot be reached
    Argb textColour = 0;        ///< of its panel; transparent while that is unknown

    friend bool operator==(const HostTraits&, const HostTraits&) = default;
};

/// Whether that is a colour and not the absence of one.
constexpr bool isKnown(Argb colour)
{
    return alphaOf(colour) != 0;
}

/// The process behind the host; both empty when it cannot be read.
struct HostProcess
{
    QString program;     ///< file name of the program, without folders
    QString commandLine; ///< its arguments, separated by blanks
};

/// What is known of the host: by its process, else by the desktop's names (as in XDG_CURRENT_DESKTOP,
/// separated by colons); an unknown host is a square one, which is legible everywhere.
HostTraits hostTraits(const HostProcess& process, const QString& currentDesktop);

/// An X11 tray, which has room for a square only, whatever the user prefers.
inline constexpr HostTraits x11TrayTraits{
    .shape = HostShape::Square, .showsToolTipTitleOnly = true, .neverScales = true};

/// The traits after the user's choice: "label", "wide" or "icon"; anything else leaves them as they are.
HostTraits withChoice(HostTraits traits, const QString& choice);

} // namespace quindle
