#pragma once

#include <functional>
#include <map>

#include <QList>
#include <QMenu>

#include "platform/linux/statusitem/MenuTypes.h"

namespace quindle {

/// The status item's menu in this toolkit.
class TrayMenu
{
public:
    /// `chosen` gets the id of the row that is chosen.
    TrayMenu(const MenuNode& root, std::function<void(int id)> chosen);

    /// Brings rows up to date while the menu is open. Unknown ones are ignored.
    void update(const QList<MenuRowProperties>& rows);

    QMenu& menu() { return m_menu; }

private:
    void addRows(QMenu& menu, const MenuNode& parent);
    QAction* addRow(QMenu& menu, const MenuNode& row);

    QMenu m_menu;
    std::function<void(int)> m_chosen;
    std::map<int, QAction*> m_actions; ///< of the rows, by id
};

} // namespace quindle
