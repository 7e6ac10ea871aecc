#include "platform/linux/statusitem/NotifierPixmaps.h"

#include <QtEndian>

#include "platform/linux/pictures/Pixels.h"

namespace quindle {

NotifierPixmap notifierPixmap(const Pixels& picture)
{
    NotifierPixmap pixmap{picture.width, picture.height, {}};
    pixmap.pixels.resize(4 * static_cast<qsizetype>(picture.data.size()));
    char* to = pixmap.pixels.data();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x, to += 4)
            qToBigEndian(colourAt(picture, x, y), to);
    }
    return pixmap;
}

} // namespace quindle
