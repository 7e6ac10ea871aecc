#include "platform/linux/statusitem/NotifierTypes.h"

#include <QDBusArgument>
#include <QDBusMetaType>

namespace quindle {

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
