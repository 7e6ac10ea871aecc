#pragma once

#include <vector>

#include <QStringList>
#include <QVariantMap>

#include "platform/StatusMenu.h"
#include "platform/linux/statusitem/MenuTypes.h"

namespace quindle {

/// The id of the menu itself; the rows count from 1.
inline constexpr int menuRootId = 0;

/// The peculiarities of one host's menu.
struct MenuForm
{
    bool commandsFirst = false; ///< the commands stand between the first row and the other facts
    bool keepsTabs = false;     ///< a label has the tab between caption and value, where columns are shown

    friend bool operator==(const MenuForm&, const MenuForm&) = default;
};

/// All properties of one row as the menu protocol names them.
QVariantMap menuRowProperties(const StatusMenu::Row& row, const MenuForm& form = {});

/// The properties of the menu itself or of a row; empty for an id that is neither. With names, only those.
QVariantMap menuProperties(const StatusMenu* menu, int id, const QStringList& names,
                           const MenuForm& form = {});

/// The menu or a row with what is below it; depth 0 is the row alone, negative ones are without limit.
/// Invisible rows are there too, so that rows never come or go while a host shows the menu.
MenuNode menuLayout(const StatusMenu* menu, int parentId, int depth, const QStringList& names,
                    const MenuForm& form = {});

/// The ids of the rows in the menu itself, from the top: as the menu has them, or with the commands between
/// the first row and the other facts.
std::vector<int> menuOrder(const StatusMenu* menu, bool commandsFirst);

/// Whether the id is the menu itself or one of its rows.
bool isMenuId(const StatusMenu* menu, int id);

} // namespace quindle
