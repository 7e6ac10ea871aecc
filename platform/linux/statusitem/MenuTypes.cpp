#include "platform/linux/statusitem/MenuTypes.h"

#include <QDBusArgument>
#include <QDBusMetaType>

namespace quindle {

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node)
{
    argument.beginStructure();
    argument << node.id << node.properties << node.children;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node)
{
    argument.beginStructure();
    argument >> node.id >> node.properties >> node.children;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuRowProperties& row)
{
    argument.beginStructure();
    argument << row.id << row.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuRowProperties& row)
{
    argument.beginStructure();
    argument >> row.id >> row.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuRowPropertyNames& row)
{
    argument.beginStructure();
    argument << row.id << row.names;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuRowPropertyNames& row)
{
    argument.beginStructure();
    argument >> row.id >> row.names;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event)
{
    argument.beginStructure();
    argument << event.id << event.name << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event)
{
    argument.beginStructure();
    argument >> event.id >> event.name >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
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
