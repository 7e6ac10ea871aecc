#include "platform/linux/statusitem/TrayItem.h"

#include <utility>

#include "platform/linux/statusitem/MenuAdaptor.h"
#include "platform/linux/statusitem/NotifierTypes.h"

namespace quindle {

TrayItem::TrayItem(const QString& program, const Presentation& presentation, StatusPictures& pictures,
                   NotifierItemAdaptor::Requests requests, std::function<void()> aboutToChoose)
    : m_item(new NotifierItemAdaptor(&m_itemObject, presentation, pictures, std::move(requests)))
    , m_menu(new MenuAdaptor(&m_menuObject, std::move(aboutToChoose)))
    , m_peer(QString())
    , m_program(program, [this](const QDBusConnection& peer) { setPeer(peer); })
{
    m_menu->setForm({.commandsFirst = false, .keepsTabs = true});
    connect(&m_program, &TrayProgram::wanted, this, &TrayItem::wanted);
}

void TrayItem::setMenu(StatusMenu* menu)
{
    m_menu->setMenu(menu);
}

void TrayItem::announce(const Presentation& last)
{
    m_item->announce(last);
}

void TrayItem::announceMenuChanges()
{
    m_menu->announceChanges();
}

void TrayItem::setPeer(const QDBusConnection& peer)
{
    m_peer = peer;
    m_peer.registerObject(QLatin1String(itemObjectPath), &m_itemObject, QDBusConnection::ExportAdaptors);
    m_peer.registerObject(QLatin1String(menuObjectPath), &m_menuObject, QDBusConnection::ExportAdaptors);
    // The program may have asked before there was anything to ask.
    m_item->announceAll();
}

} // namespace quindle

#include "moc_TrayItem.cpp"
