#include "windows/tray/TrayPixmaps.h"

#include <QImage>
#include <QPixmap>
#include <QtEndian>

namespace quindle {

namespace {

constexpr int largest = 512;

bool isPicture(const NotifierPixmap& pixmap)
{
    const auto isSide = [](int side) { return side > 0 && side <= largest; };
    return isSide(pixmap.width) && isSide(pixmap.height) &&
           pixmap.pixels.size() == qsizetype{4} * pixmap.width * pixmap.height;
}

QImage imageOf(const NotifierPixmap& pixmap)
{
    QImage image(pixmap.width, pixmap.height, QImage::Format_ARGB32);
    qFromBigEndian<quint32>(pixmap.pixels.constData(), pixmap.pixels.size() / 4, image.bits());
    return image;
}

} // namespace

QIcon iconOf(const QList<NotifierPixmap>& pixmaps)
{
    QIcon icon;
    for (const NotifierPixmap& pixmap : pixmaps) {
        if (isPicture(pixmap))
            icon.addPixmap(QPixmap::fromImage(imageOf(pixmap)));
    }
    return icon;
}

} // namespace quindle
