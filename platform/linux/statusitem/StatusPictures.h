#pragma once

#include <vector>

#include <QString>

#include "platform/linux/pictures/IconMasks.h"
#include "platform/linux/pictures/Lettering.h"
#include "platform/linux/pictures/NumberPlace.h"
#include "platform/linux/pictures/Pixels.h"
#include "platform/linux/statusitem/Presentation.h"

namespace quindle {

/// Makes the item's pictures, on demand: in the panel's text colour where that is known, else in white on a
/// dark plate, which reads on light and dark panels.
class StatusPictures
{
public:
    /// In that folder are the images' shapes, masks/NAME.pgm, and their drawings: icons/NAME-symbolic.svg,
    /// made on 22 pixels, and icons/16/NAME-symbolic.svg, made on 16; icons/transparent.png is there too.
    explicit StatusPictures(const QString& resourcesDirectory);

    /// The picture in that size (pixels; the height of a wide one). Empty when the image has no file.
    Pixels image(const Picture& picture, int size);

    /// The sizes that hosts choose from: squares, or one wide picture. Hosts take the largest by different
    /// rules, so the two are never mixed. Empty for a transparent picture.
    std::vector<Pixels> images(const Picture& picture);

    /// The picture as a file, for hosts that show nothing else; empty if it could not be written.
    QString file(const Picture& picture);

    /// The square picture as a drawing without a colour of its own, as a file; empty if there is none.
    QString drawing(const Picture& picture);

    /// A picture of one transparent pixel, shown instead of the host's own sign for a missing icon.
    QString transparentFile() const;

private:
    template <typename Draw>
    auto complete(const Draw& draw);
    Pixels drawn(const Picture& picture, int size);
    Pixels icon(const Picture& picture, int size);
    NumberPlace placeOf(const Picture& picture, QSizeF ink, int fontSize);
    Pixels squareText(const Picture& picture, int size);
    void paintNumber(Pixels& onto, const Picture& picture, const QRectF& place, const QRectF& trial);
    Pixels wideText(const Picture& picture, int height);
    QByteArray drawingOfText(const Picture& picture);
    QString drawingOfImage(const QString& name, bool isSmall) const;

    QString m_iconsDirectory;
    IconMasks m_masks;
    Lettering m_lettering;
};

} // namespace quindle
