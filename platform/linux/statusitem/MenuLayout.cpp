#include "platform/linux/statusitem/MenuLayout.h"

#include <algorithm>
#include <numeric>

#include "platform/linux/statusitem/StatusTexts.h"

namespace quindle {

namespace {

int rowCount(const StatusMenu* menu)
{
    return menu ? static_cast<int>(menu->rows().size()) : 0;
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

QVariantMap menuRowProperties(const StatusMenu::Row& row)
{
    if (row.kind == StatusMenu::Kind::Separator)
        return {{QStringLiteral("type"), QStringLiteral("separator")},
                {QStringLiteral("visible"), row.visible}};
    // Facts count as enabled although choosing one does nothing: hosts draw disabled rows in a grey that is
    // hard to read and leave them out when stepping by keyboard, so a screen reader would never tell them.
    return {
        {QStringLiteral("label"), menuLabel(row.text)},
        {QStringLiteral("enabled"), row.enabled || row.kind == StatusMenu::Kind::Fact},
        {QStringLiteral("visible"), row.visible},
    };
}

QVariantMap menuProperties(const StatusMenu* menu, int id, const QStringList& names)
{
    if (!isMenuId(menu, id))
        return {};
    if (id == menuRootId)
        return only({{QStringLiteral("children-display"), QStringLiteral("submenu")}}, names);
    return only(menuRowProperties(menu->rows()[static_cast<std::size_t>(id) - 1]), names);
}

MenuNode menuLayout(const StatusMenu* menu, int parentId, int depth, const QStringList& names,
                    bool commandsFirst)
{
    MenuNode node{parentId, menuProperties(menu, parentId, names), {}};
    if (parentId != menuRootId || depth == 0)
        return node;
    for (const int id : menuOrder(menu, commandsFirst)) {
        const MenuNode child{id, menuProperties(menu, id, names), {}};
        node.children.append(QDBusVariant(QVariant::fromValue(child)));
    }
    return node;
}

std::vector<int> menuOrder(const StatusMenu* menu, bool commandsFirst)
{
    std::vector<int> ids(static_cast<std::size_t>(rowCount(menu)));
    std::iota(ids.begin(), ids.end(), 1);
    if (!commandsFirst)
        return ids;
    const auto kindOf = [menu](int id) { return menu->rows()[static_cast<std::size_t>(id) - 1].kind; };
    const auto isCommand = [&kindOf](int id) {
        return kindOf(id) == StatusMenu::Kind::OpenView || kindOf(id) == StatusMenu::Kind::Action;
    };
    const auto firstCommand = std::find_if(ids.begin(), ids.end(), isCommand);
    if (firstCommand == ids.begin() || firstCommand == ids.end())
        return ids;
    const auto afterCommands = std::rotate(ids.begin() + 1, firstCommand, ids.end());
    // The line between the groups stood after the facts.
    if (afterCommands != ids.end() && kindOf(ids.back()) == StatusMenu::Kind::Separator)
        std::rotate(afterCommands, ids.end() - 1, ids.end());
    return ids;
}

bool isMenuId(const StatusMenu* menu, int id)
{
    return id >= menuRootId && id <= rowCount(menu);
}

} // namespace quindle
