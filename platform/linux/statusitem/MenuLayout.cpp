#include "platform/linux/statusitem/MenuLayout.h"

#include <algorithm>

#include "platform/linux/statusitem/StatusTexts.h"

namespace quindle {

namespace {

int rowCount(const StatusMenu* menu)
{
    return menu ? static_cast<int>(menu->rows().size()) : 0;
}

/// The rows of a submenu, or those of the menu itself.
std::vector<int> rowsIn(const StatusMenu* menu, int parentId)
{
    std::vector<int> ids;
    for (int id = 1; id <= rowCount(menu); ++id) {
        if (menu->rows()[static_cast<std::size_t>(id) - 1].parent == parentId)
            ids.push_back(id);
    }
    return ids;
}

QVariantMap only(const QVariantMap& properties, const QStringList& names)
{
    if (names.isEmpty())
        return properties;
    QVariantMap chosen;
    for (const QString& name : names) {
        if (properties.contains(name))
            chosen.insert(name, properties.value(name));
    }
    return chosen;
}

} // namespace

QVariantMap menuRowProperties(const StatusMenu::Row& row, const MenuForm& form)
{
    if (row.kind == StatusMenu::Kind::Separator)
        return {{QStringLiteral("type"), QStringLiteral("separator")},
                {QStringLiteral("visible"), row.visible}};
    QVariantMap properties{
        {QStringLiteral("label"), menuLabel(row.text, form.keepsTabs)},
        {QStringLiteral("enabled"), row.enabled},
        {QStringLiteral("visible"), row.visible},
    };
    if (row.kind == StatusMenu::Kind::Submenu)
        properties.insert(QStringLiteral("children-display"), QStringLiteral("submenu"));
    return properties;
}

QVariantMap menuProperties(const StatusMenu* menu, int id, const QStringList& names, const MenuForm& form)
{
    if (!isMenuId(menu, id))
        return {};
    if (id == menuRootId)
        return only({{QStringLiteral("children-display"), QStringLiteral("submenu")}}, names);
    return only(menuRowProperties(menu->rows()[static_cast<std::size_t>(id) - 1], form), names);
}

MenuNode menuLayout(const StatusMenu* menu, int parentId, int depth, const QStringList& names,
                    const MenuForm& form)
{
    MenuNode node{parentId, menuProperties(menu, parentId, names, form), {}};
    if (depth == 0)
        return node;
    const std::vector<int> ids =
        parentId == menuRootId ? menuOrder(menu, form.commandsFirst) : rowsIn(menu, parentId);
    for (const int id : ids) {
        const MenuNode child = menuLayout(menu, id, depth - 1, names, form);
        node.children.append(QDBusVariant(QVariant::fromValue(child)));
    }
    return node;
}

std::vector<int> menuOrder(const StatusMenu* menu, bool commandsFirst)
{
    std::vector<int> ids = rowsIn(menu, menuRootId);
    if (!commandsFirst)
        return ids;
    const auto kindOf = [menu](int id) { return menu->rows()[static_cast<std::size_t>(id) - 1].kind; };
    const auto isCommand = [&kindOf](int id) {
        return kindOf(id) == StatusMenu::Kind::OpenView || kindOf(id) == StatusMenu::Kind::Action;
    };
    const auto firstCommand = std::find_if(ids.begin(), ids.end(), isCommand);
    // They are first already, or there are none.
    if (firstCommand == ids.begin() || firstCommand == ids.end())
        return ids;
    const auto afterCommands = std::rotate(ids.begin() + 1, firstCommand, ids.end());
    // The separator between the groups came after the facts.
    if (afterCommands != ids.end() && kindOf(ids.back()) == StatusMenu::Kind::Separator)
        std::rotate(afterCommands, ids.end() - 1, ids.end());
    return ids;
}

bool isMenuId(const StatusMenu* menu, int id)
{
    return id >= menuRootId && id <= rowCount(menu);
}

} // namespace quindle
