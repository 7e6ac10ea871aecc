#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include <QDBusConnection>
#include <QObject>
#include <QPointer>
#include <QString>

#include "platform/StatusBar.h"
#include "platform/linux/display/X11Desktop.h"
#include "platform/linux/display/X11Display.h"
#include "platform/linux/os/Colour.h"
#include "platform/linux/session/BacklogGuard.h"
#include "platform/linux/statusitem/HostTraits.h"
#include "platform/linux/statusitem/InterfaceFont.h"
#include "platform/linux/statusitem/NotifierItemAdaptor.h"
#include "platform/linux/statusitem/Presentation.h"
#include "platform/linux/statusitem/StatusPictures.h"
#include "platform/linux/statusitem/ThemeSwitch.h"

namespace quindle {

class MenuAdaptor;
class RunLoop;
class TrayItem;
class WatcherLink;

/// What a status item finds around it.
struct StatusItemSurroundings
{
    QString resourcesDirectory;
    QString currentDesktop;                      ///< names separated by colons, as in XDG_CURRENT_DESKTOP
    std::function<QString()> presentationChoice; ///< "label", "wide", "icon"; anything else: by the host
    std::chrono::milliseconds registrationCheck{3000};
    QString trayProgram{}; ///< what holds the icon in an X11 tray; its path
    /// The X server has been reset, and with it ended the desktop that the item was shown on.
    std::function<void()> displayReset = [] {};
};

/// The status item as a status notifier item, or in an X11 tray where no watcher of such items is on the bus.
/// Setters only store; at the end of the event loop's turn hosts are notified of any changes.
class LinuxStatusItem final : public QObject, public StatusItem
{
    Q_OBJECT

public:
    /// The connection is the item's own, and closed with it: watchers know items by their connection. One
    /// that is not connected leaves the X11 tray.
    LinuxStatusItem(const QDBusConnection& bus, RunLoop& runLoop, StatusItemSurroundings surroundings);
    ~LinuxStatusItem() override;

    /// Moves the item to another connection, because the present one was lost or a bus has come. As in the
    /// constructor.
    void setBus(const QDBusConnection& bus);

    void setTitle(const QString& title) override;
    QString title() const override;
    void setImage(std::shared_ptr<Image> image) override;
    std::shared_ptr<Image> image() const override;
    void setMenuBarFontSize(double points) override;
    void setFallbackText(const QString& text) override;
    void setFallbackOnPower(bool hasPower) override;
    void setToolTipText(const QString& text) override;
    void setMenu(StatusMenu* menu) override;
    void setNeedsAttention(bool needed) override;
    std::optional<ShownItem> shownItem() override;

    /// Whether each refresh asks whether an X11 tray has come.
    bool looksForTray() const;

Q_SIGNALS:
    /// A peer floods the item with calls and does not wait for the answers. The item is off the bus; its
    /// connection has to be closed, with everything queued in it.
    void busAbused();

private:
    void exportObjects();
    void withdrawObjects();
    void useItem(NotifierItemAdaptor* item);
    void linkToWatcher();
    void scheduleFlush();
    void flush();
    void announce(Presentation next);
    void watcherFound(const HostProcess& process);
    void watcherLost();
    NotifierItemAdaptor::Requests requests();
    void makeTray();
    void lookForTray();
    X11Tray lookAtPanel();
    void lookAtPanelAgain();
    void lookAtPanelSoon();
    void toggleView();
    void useActivationToken();

    /// Everything that decides what hosts see.
    struct Decisive
    {
        ItemContents contents;
        HostTraits host;
        bool hasWatcher = false;
        QString choice;
        Argb textColour = 0;
        QString fontFamily;

        friend bool operator==(const Decisive&, const Decisive&) = default;
    };

    QDBusConnection m_bus;
    RunLoop& m_runLoop;
    StatusItemSurroundings m_surroundings;
    StatusPictures m_pictures;
    X11Display m_display;
    ServerMark m_serverMark;
    InterfaceFont m_font{m_display, m_runLoop};
    ThemeSwitch m_themeSwitch{m_runLoop, [this] { lookAtPanelAgain(); }};
    std::chrono::milliseconds m_panelSeen{0}; ///< since the computer's start
    std::shared_ptr<Image> m_image;
    StatusMenu* m_menu = nullptr;
    Decisive m_wanted;
    std::optional<Decisive> m_flushed;
    Presentation m_announced;
    HostShape m_announcedShape = HostShape::Square; ///< that it was made for
    QString m_activationToken;
    bool m_flushScheduled = false;
    bool m_menuChanged = false;
    bool m_started = false;
    QObject m_itemObject;
    QObject m_itemObjectWithoutLabel;
    QObject m_menuObject;
    NotifierItemAdaptor* m_notifierItem = nullptr; ///< the one of the exported object
    NotifierItemAdaptor* m_labelledItem = nullptr;
    NotifierItemAdaptor* m_itemWithoutLabel = nullptr;
    MenuAdaptor* m_menuAdaptor = nullptr;
    BacklogGuard m_guard;
    std::unique_ptr<WatcherLink> m_watcher;
    std::unique_ptr<TrayItem> m_tray; ///< null while there is a watcher
};

/// The tray of the desktop session that the program runs in.
class LinuxStatusBar final : public StatusBar
{
public:
    /// The loop must outlive it and its items.
    LinuxStatusBar(RunLoop& runLoop, StatusItemSurroundings surroundings);

    /// Hosts decide on the width, so the length has no effect here.
    std::unique_ptr<StatusItem> statusItemWithLength(double length) override;

    /// Whether the item that was made last looks for a tray at each refresh.
    bool looksForTray() const;

private:
    RunLoop& m_runLoop;
    StatusItemSurroundings m_surroundings;
    QPointer<LinuxStatusItem> m_last;
    int m_items = 0;
};

} // namespace quindle
