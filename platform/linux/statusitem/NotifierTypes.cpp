#include "platform/linux/statusitem/NotifierTypes.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QtEndian>

#include "platform/linux/pictures/Pixels.h"

namespace quindle {

NotifierPixmap notifierPixmap(const Pixels& picture)
{
    NotifierPixmap pixmap{picture.width, picture.height, {}};
    pixmap.pixels.resize(static_cast<qsizetype>(4 * picture.data.size()));
    char* to = pixmap.pixels.data();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x, to += 4)
            qToBigEndian(colourAt(picture, x, y), to);
    }
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
