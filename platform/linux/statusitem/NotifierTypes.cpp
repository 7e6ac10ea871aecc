#include "platform/linux/statusitem/NotifierTypes.h"

#include <QDBusMetaType>

namespace quindle {

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap)
{
    return writeStructure(argument, pixmap.width, pixmap.height, pixmap.pixels);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap)
{
    return readStructure(argument, pixmap.width, pixmap.height, pixmap.pixels);
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip)
{
    return writeStructure(argument, toolTip.iconName, toolTip.icon, toolTip.title, toolTip.body);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip)
{
    return readStructure(argument, toolTip.iconName, toolTip.icon, toolTip.title, toolTip.body);
}

void registerNotifierTypes()
{
    qDBusRegisterMetaType<NotifierPixmap>();
    qDBusRegisterMetaType<QList<NotifierPixmap>>();
    qDBusRegisterMetaType<NotifierToolTip>();
}

} // namespace quindle
