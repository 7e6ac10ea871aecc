#include "platform/linux/statusitem/StripPainting.h"

#include <QImage>
#include <QPainter>

namespace quindle {

namespace {

/// A row of an icon crosses a handful of outlines, each of which is a span or two.
constexpr int rowsOfStrip = 8;

} // namespace

void paintInStrips(QImage& image, const std::function<void(QPainter&)>& paint)
{
    QPainter painter(&image);
    for (int top = 0; top < image.height(); top += rowsOfStrip) {
        painter.setClipRect(0, top, image.width(), rowsOfStrip);
        paint(painter);
    }
}

} // namespace quindle
