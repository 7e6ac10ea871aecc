#pragma once

#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariantMap>

class QDBusArgument;

namespace quindle {

/// (ia{sv}av): a row with the rows below it.
struct MenuNode
{
    int id = 0;
    QVariantMap properties;
    QList<QDBusVariant> children; ///< each a MenuNode
};

/// (ia{sv}): properties of one row.
struct MenuRowProperties
{
    int id = 0;
    QVariantMap properties;
};

/// (ias): names of properties of one row.
struct MenuRowPropertyNames
{
    int id = 0;
    QStringList names;
};

/// (isvu): what happened to one row.
struct MenuEvent
{
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const MenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuNode& node);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuRowProperties& row);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuRowProperties& row);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuRowPropertyNames& row);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuRowPropertyNames& row);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event);

/// Makes the types known to the bus; may be called again.
void registerMenuTypes();

} // namespace quindle

Q_DECLARE_METATYPE(quindle::MenuNode)
Q_DECLARE_METATYPE(quindle::MenuRowProperties)
Q_DECLARE_METATYPE(quindle::MenuRowPropertyNames)
Q_DECLARE_METATYPE(quindle::MenuEvent)
