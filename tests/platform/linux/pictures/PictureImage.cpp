#include "tests/platform/linux/pictures/PictureImage.h"

namespace quindle {

QImage imageOf(const Pixels& pixels)
{
    const auto* bytes = reinterpret_cast<const uchar*>(pixels.data.data());
    return QImage(bytes, pixels.width, pixels.height, QImage::Format_ARGB32_Premultiplied).copy();
}

QRect inkBox(const Pixels& pixels, unsigned alpha)
{
    QRect box;
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x)
            box |= alphaOf(colourAt(pixels, x, y)) >= alpha ? QRect(x, y, 1, 1) : QRect();
    }
    return box;
}

} // namespace quindle
