#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>

namespace quindle {

/// Where the item and its menu are on a connection.
inline constexpr auto itemObjectPath = "/StatusNotifierItem";
inline constexpr auto menuObjectPath = "/MenuBar";

/// (iiay): a picture on the bus, its pixels as ARGB in network byte order, not premultiplied.
struct NotifierPixmap
{
    int width = 0;
    int height = 0;
    QByteArray pixels;
};

/// (sa(iiay)ss)
struct NotifierToolTip
{
    QString iconName;
    QList<NotifierPixmap> icon;
    QString title;
    QString body;
};

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip);

/// Writes the fields to the bus as one structure.
template <typename... Fields>
QDBusArgument& writeStructure(QDBusArgument& argument, const Fields&... fields)
{
    argument.beginStructure();
    (argument << ... << fields);
    argument.endStructure();
    return argument;
}

/// Reads one structure from the bus into the fields, in their order.
template <typename... Fields>
const QDBusArgument& readStructure(const QDBusArgument& argument, Fields&... fields)
{
    argument.beginStructure();
    (argument >> ... >> fields);
    argument.endStructure();
    return argument;
}

/// Makes the types known to the bus; may be called again.
void registerNotifierTypes();

} // namespace quindle

Q_DECLARE_METATYPE(quindle::NotifierPixmap)
Q_DECLARE_METATYPE(quindle::NotifierToolTip)
