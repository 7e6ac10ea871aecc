#include "platform/linux/statusitem/NotifierTypes.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QImage>
#include <QtEndian>

namespace quindle {

NotifierPixmap notifierPixmap(const QImage& image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    NotifierPixmap pixmap{argb.width(), argb.height(), {}};
    const qsizetype lineBytes = qsizetype{4} * argb.width();
    pixmap.pixels.reserve(lineBytes * argb.height());
    for (int y = 0; y < argb.height(); ++y)
        pixmap.pixels.append(reinterpret_cast<const char*>(argb.constScanLine(y)), lineBytes);
    char* pixels = pixmap.pixels.data();
    qToBigEndian<quint32>(pixels, pixmap.pixels.size() / 4, pixels);
    return pixmap;
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap)
{
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap)
{
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip)
{
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.body;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip)
{
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.body;
    argument.endStructure();
    return argument;
}

void registerNotifierTypes()
{
    qDBusRegisterMetaType<NotifierPixmap>();
    qDBusRegisterMetaType<QList<NotifierPixmap>>();
    qDBusRegisterMetaType<NotifierToolTip>();
}

} // namespace quindle
