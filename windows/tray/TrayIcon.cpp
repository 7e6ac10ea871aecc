#include "windows/tray/TrayIcon.h"

#include <QCursor>
#include <QIcon>

#include "windows/tray/TrayMenu.h"
#include "windows/tray/TrayPixmaps.h"

namespace quindle {

TrayIcon::TrayIcon(const QDBusConnection& helper)
    : m_item(helper)
{
    connect(&m_icon, &QSystemTrayIcon::activated, this, &TrayIcon::handleClick);
    connect(&m_item, &RemoteItem::pixmapsChanged, this, &TrayIcon::showPixmaps);
    connect(&m_item, &RemoteItem::toolTipChanged, &m_icon, &QSystemTrayIcon::setToolTip);
    connect(&m_item, &RemoteItem::menuRowsChanged, this, &TrayIcon::updateMenu);
    connect(&m_item, &RemoteItem::gone, this, &TrayIcon::gone);
    m_item.start();
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::showPixmaps(const QList<NotifierPixmap>& pixmaps)
{
    m_icon.setIcon(iconOf(pixmaps));
    // Only with a picture, or the tray would show an empty place.
    m_icon.show();
}

void TrayIcon::handleClick(QSystemTrayIcon::ActivationReason reason)
{
    // Now: the menu's rows come later, when the pointer may be elsewhere.
    const QPoint place = QCursor::pos();
    if (reason == QSystemTrayIcon::Context)
        m_item.askForMenu([this, place](const MenuNode& menu) { openMenu(menu, place); });
    else if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::MiddleClick)
        m_item.activate(place);
}

void TrayIcon::openMenu(const MenuNode& menu, const QPoint& place)
{
    m_menu = std::make_unique<TrayMenu>(menu, [this](int id) { m_item.choose(id); });
    m_menu->menu().popup(place);
}

void TrayIcon::updateMenu(const QList<MenuRowProperties>& rows)
{
    if (m_menu && m_menu->menu().isVisible())
        m_menu->update(rows);
}

} // namespace quindle

#include "moc_TrayIcon.cpp"
