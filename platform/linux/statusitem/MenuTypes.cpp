#include "platform/linux/statusitem/MenuTypes.h"

#include <QDBusMetaType>

#include "platform/linux/statusitem/NotifierTypes.h"

namespace quindle {

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node)
{
    return writeStructure(argument, node.id, node.properties, node.children);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node)
{
    return readStructure(argument, node.id, node.properties, node.children);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuRowProperties& row)
{
    return writeStructure(argument, row.id, row.properties);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuRowProperties& row)
{
    return readStructure(argument, row.id, row.properties);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuRowPropertyNames& row)
{
    return writeStructure(argument, row.id, row.names);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuRowPropertyNames& row)
{
    return readStructure(argument, row.id, row.names);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event)
{
    return writeStructure(argument, event.id, event.name, event.data, event.timestamp);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event)
{
    return readStructure(argument, event.id, event.name, event.data, event.timestamp);
}

void registerMenuTypes()
{
    qDBusRegisterMetaType<MenuNode>();
    qDBusRegisterMetaType<MenuRowProperties>();
    qDBusRegisterMetaType<QList<MenuRowProperties>>();
    qDBusRegisterMetaType<MenuRowPropertyNames>();
    qDBusRegisterMetaType<QList<MenuRowPropertyNames>>();
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
    qDBusRegisterMetaType<QList<QDBusVariant>>();
}

} // namespace quindle
