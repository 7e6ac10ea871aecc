#pragma once

#include <optional>

#include <QString>

#include "platform/ShownItem.h"
#include "platform/linux/os/Colour.h"
#include "platform/linux/statusitem/HostTraits.h"

namespace quindle {

/// What the application has set on the status item.
struct ItemContents
{
    QString title;
    QString imageName; ///< empty for no image
    QString fallbackText;
    QString toolTipText;
    double fontSize = 12.0; ///< points in a bar 22 points high
    bool needsAttention = false;
    bool hasPower = false; ///< the charging icons' condition

    friend bool operator==(const ItemContents&, const ItemContents&) = default;
};

/// Which picture the item shows. Two pictures with the same values look the same.
struct Picture
{
    enum class Kind {
        Icon,        ///< the image `imageName`, square
        Text,        ///< `text`, a number, as large as it fits a square
        Wide,        ///< the image, if there is one, and `text` beside it
        Transparent, ///< nothing: the host writes the title itself
    };

    Kind kind = Kind::Icon;
    QString imageName;
    QString text;
    double fontSize = 0.0;
    Argb ink = 0;              ///< the colour of the panel's text; see isKnown
    bool isSmall = false;      ///< the host shows a drawing in 16 pixels, not in 22
    bool isUnscaled = false;   ///< the host shows one of its sizes as it is
    bool inAllHeights = false; ///< a wide one is wanted as high as icons, not large and to be scaled
    QString fontFamily{};      ///< of text; empty for the system's usual one
    bool isAlarming = false;   ///< drawn in red
    bool hasBolt = false;      ///< of Text: a small bolt stands below it

    friend bool operator==(const Picture&, const Picture&) = default;
};

/// How a picture gets to the host.
enum class Carrier {
    Pixels,  ///< over the bus
    File,    ///< as a file of pixels
    Drawing, ///< as a file that the host draws in the colour of its panel's text
};

/// What a host sees of the item.
struct Presentation
{
    QString title;
    QString toolTipTitle;
    QString toolTipBody;
    QString plainToolTip; ///< the whole tool tip without any markup
    QString label;
    QString labelGuide; ///< a text as wide as the label usually gets
    Picture picture;
    Carrier carrier = Carrier::Pixels;
    bool needsAttention = false;

    friend bool operator==(const Presentation&, const Presentation&) = default;
};

/// What that host sees of these contents. The title is exact; what is drawn or written beside the icon is
/// one line and cut with an ellipsis; the picture is never empty unless the host writes the title. The family
/// is the one that the desktop writes in, empty while that is unknown.
Presentation present(const ItemContents& contents, const HostTraits& host, const QString& fontFamily = {});

/// What a panel with hosts of that shape shows of it, without the picture's pixels.
ShownItem shownItem(const Presentation& presentation, HostShape shape);

/// The square picture that is seen of it, in an ink to be replaced; nothing where none is.
std::optional<Picture> shownSquare(const Presentation& presentation);

/// What a host shows instead of the picture while the item needs attention, if it does: the same in red, so
/// that nothing is lost.
Picture attentionPicture(const Presentation& presentation);

} // namespace quindle
