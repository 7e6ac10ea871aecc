#pragma once

#include <functional>
#include <map>

#include <QList>
#include <QMenu>

#include "platform/linux/statusitem/MenuTypes.h"

namespace quindle {

/// A menu whose rows that cannot be chosen are legible in the desktop's colours, also when these change.
class LegibleMenu : public QMenu
{
public:
    explicit LegibleMenu(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeDisabledLegible();
};

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

    LegibleMenu m_menu;
    std::function<void(int)> m_chosen;
    std::map<int, QAction*> m_actions; ///< of the rows, by id
};

} // namespace quindle
