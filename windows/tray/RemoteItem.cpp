#include "windows/tray/RemoteItem.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include "platform/linux/statusitem/NotifierTypes.h"

namespace quindle {

namespace {

constexpr auto itemInterface = "org.kde.StatusNotifierItem";
constexpr auto menuInterface = "com.canonical.dbusmenu";

/// A connection between two processes has no names.
QDBusMessage methodCall(const char* path, const char* interface, const char* method,
                        const QVariantList& arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(QString(), QLatin1String(path),
                                                          QLatin1String(interface), QLatin1String(method));
    message.setArguments(arguments);
    return message;
}

} // namespace

RemoteItem::RemoteItem(const QDBusConnection& helper)
    : m_helper(helper)
{
    listen(itemObjectPath, itemInterface, "NewIcon", SLOT(askForPixmaps()));
    listen(itemObjectPath, itemInterface, "NewToolTip", SLOT(askForToolTip()));
    listen(menuObjectPath, menuInterface, "ItemsPropertiesUpdated", SLOT(hearMenuRows(QDBusMessage)));
    listen("/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected", SIGNAL(gone()));
}

void RemoteItem::listen(const char* path, const char* interface, const char* signal, const char* slot)
{
    m_helper.connect(QString(), QLatin1String(path), QLatin1String(interface), QLatin1String(signal), this,
                     slot);
}

void RemoteItem::start()
{
    askForToolTip();
    askForPixmaps();
}

void RemoteItem::activate(const QPoint& place)
{
    m_helper.send(methodCall(itemObjectPath, itemInterface, "Activate", {place.x(), place.y()}));
}

void RemoteItem::askForMenu(std::function<void(const MenuNode&)> answered)
{
    constexpr int root = 0;
    constexpr int wholeDepth = -1;
    const QDBusMessage message =
        methodCall(menuObjectPath, menuInterface, "GetLayout", {root, wholeDepth, QStringList()});
    call(message, [answered = std::move(answered)](const QList<QVariant>& answer) {
        answered(qdbus_cast<MenuNode>(answer.value(1)));
    });
}

void RemoteItem::choose(int id)
{
    constexpr uint now = 0;
    const QVariant noData = QVariant::fromValue(QDBusVariant(QString()));
    m_helper.send(
        methodCall(menuObjectPath, menuInterface, "Event", {id, QStringLiteral("clicked"), noData, now}));
}

void RemoteItem::askForPixmaps()
{
    askForProperty("IconPixmap", [this](const QVariant& value) {
        Q_EMIT pixmapsChanged(qdbus_cast<QList<NotifierPixmap>>(value));
    });
}

void RemoteItem::askForToolTip()
{
    askForProperty("ToolTip", [this](const QVariant& value) {
        Q_EMIT toolTipChanged(qdbus_cast<NotifierToolTip>(value).title);
    });
}

void RemoteItem::hearMenuRows(const QDBusMessage& message)
{
    Q_EMIT menuRowsChanged(qdbus_cast<QList<MenuRowProperties>>(message.arguments().value(0)));
}

void RemoteItem::askForProperty(const char* name, const std::function<void(const QVariant&)>& answered)
{
    const QDBusMessage message = methodCall(itemObjectPath, "org.freedesktop.DBus.Properties", "Get",
                                            {QLatin1String(itemInterface), QLatin1String(name)});
    call(message, [answered](const QList<QVariant>& answer) {
        answered(answer.value(0).value<QDBusVariant>().variant());
    });
}

void RemoteItem::call(const QDBusMessage& message, const Answered& answered)
{
    auto* pending = new QDBusPendingCallWatcher(m_helper.asyncCall(message), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [answered](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        // A helper that has just ended says so by closing the connection.
        if (!finished->isError())
            answered(finished->reply().arguments());
    });
}

} // namespace quindle

#include "moc_RemoteItem.cpp"
