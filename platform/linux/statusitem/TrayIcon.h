#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QObject>
#include <QSystemTrayIcon>

#include "platform/StatusMenu.h"
#include "platform/linux/statusitem/Presentation.h"

class QAction;
class QMenu;

namespace quindle {

class StatusPictures;

/// The item in an X11 tray, for desktops without a watcher of status notifier items. It shows itself as soon
/// as there is a tray. Create it only while no watcher is on the bus: it would register there as a second
/// item.
class TrayIcon final : public QObject
{
    Q_OBJECT

public:
    explicit TrayIcon(StatusMenu* menu);
    ~TrayIcon() override;

    /// `presentation` is the one for a square host.
    void show(const Presentation& presentation, StatusPictures& pictures);

    /// Brings an open menu up to date.
    void updateMenu();

private:
    void activated(QSystemTrayIcon::ActivationReason reason);
    void openMenu();
    QAction* addRow(const StatusMenu::Row& row);

    StatusMenu* m_menu;
    QSystemTrayIcon m_icon;
    std::optional<Picture> m_shownPicture;
    std::unique_ptr<QMenu> m_contextMenu;
    std::vector<QAction*> m_actions; ///< of the rows; the row with id n at n - 1
};

} // namespace quindle
