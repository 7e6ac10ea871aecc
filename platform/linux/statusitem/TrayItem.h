#pragma once

#include <functional>

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include "platform/linux/statusitem/NotifierItemAdaptor.h"
#include "platform/linux/statusitem/TrayProgram.h"

namespace quindle {

class MenuAdaptor;
class StatusMenu;

/// The item in an X11 tray, for desktops without a watcher of status notifier items. A program of its own
/// holds the icon and is the item's host, over a private connection.
class TrayItem final : public QObject
{
    Q_OBJECT

public:
    /// `program` is the path of the program; see TrayProgram. The presentation, which is the one for X11
    /// trays, the pictures and the menu, which may be null, must outlive this object.
    TrayItem(const QString& program, const Presentation& presentation, StatusPictures& pictures,
             NotifierItemAdaptor::Requests requests, std::function<void()> aboutToChoose);

    void setMenu(StatusMenu* menu);

    /// Whether the program should be started, if there is a tray.
    bool isWanted() const { return m_program.isWanted(); }

    bool isRunning() const { return m_program.isRunning(); }

    /// Starts the program; there must be a tray.
    void start() { m_program.start(); }

    /// Announces what is different in the presentation, and in the menu's rows.
    void announce(const Presentation& last);
    void announceMenuChanges();

Q_SIGNALS:
    /// The program has ended and should be started again, if there still is a tray.
    void wanted();

private:
    void setPeer(const QDBusConnection& peer);

    QObject m_itemObject;
    QObject m_menuObject;
    NotifierItemAdaptor* m_item;
    MenuAdaptor* m_menu;
    QDBusConnection m_peer;
    TrayProgram m_program;
};

} // namespace quindle
