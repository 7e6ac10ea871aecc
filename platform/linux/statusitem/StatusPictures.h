#pragma once

#include <map>
#include <set>
#include <tuple>
#include <vector>

#include <QImage>
#include <QString>

#include "platform/linux/statusitem/Presentation.h"

namespace quindle {

/// Makes the item's pictures, on demand: in the panel's text colour where that is known, else in white on a
/// dark plate, which reads on light and dark panels.
class StatusPictures
{
public:
    /// Images are the files NAME-symbolic.svg in that folder, made on 22 pixels, and in its folder "16", made
    /// on 16; transparent.png is there too.
    explicit StatusPictures(QString iconsDirectory);

    /// The picture in that size (pixels; the height of a wide one). Null when the image has no file.
    QImage image(const Picture& picture, int size);

    /// The sizes that hosts choose from: squares, or one wide picture. Hosts take the largest by different
    /// rules, so the two are never mixed. Empty for a transparent picture.
    std::vector<QImage> images(const Picture& picture);

    /// The picture as a file, for hosts that show nothing else; empty if it could not be written.
    QString file(const Picture& picture);

    /// The square picture as a drawing without a colour of its own, as a file; empty if there is none.
    QString drawing(const Picture& picture) const;

    /// A picture of one transparent pixel. It takes the place of the host's own picture for a missing icon.
    QString transparentFile() const;

private:
    QString drawingOfImage(const QString& name, int grid) const;
    QImage glyph(const Picture& picture, int size);

    QString m_iconsDirectory;
    std::map<std::tuple<QString, int, Argb>, QImage> m_glyphs; ///< kept, because reading a drawing takes long
    std::set<QString> m_missing;                               ///< already logged
};

} // namespace quindle
