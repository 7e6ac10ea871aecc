#pragma once

#include <memory>

#include <QObject>
#include <QSystemTrayIcon>

#include "platform/linux/statusitem/MenuTypes.h"
#include "windows/tray/RemoteItem.h"

namespace quindle {

class TrayMenu;

/// The status item in an X11 tray. It shows itself as soon as it knows its picture and there is a tray, even
/// one that comes later. Make it only while no watcher of status notifier items is on the bus: the toolkit
/// would register it there.
class TrayIcon final : public QObject
{
    Q_OBJECT

public:
    explicit TrayIcon(const QDBusConnection& helper);
    ~TrayIcon() override;

Q_SIGNALS:
    /// As of RemoteItem.
    void gone();

private:
    void showPixmaps(const QList<NotifierPixmap>& pixmaps);
    void handleClick(QSystemTrayIcon::ActivationReason reason);
    void openMenu(const MenuNode& menu, const QPoint& place);
    void updateMenu(const QList<MenuRowProperties>& rows);

    RemoteItem m_item;
    QSystemTrayIcon m_icon;
    std::unique_ptr<TrayMenu> m_menu;
};

} // namespace quindle
