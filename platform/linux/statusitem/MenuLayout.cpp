#include "platform/linux/statusitem/MenuLayout.h"

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

MenuNode menuLayout(const StatusMenu* menu, int parentId, int depth, const QStringList& names)
{
    MenuNode node{parentId, menuProperties(menu, parentId, names), {}};
    if (parentId != menuRootId || depth == 0)
        return node;
    for (int id = 1; id <= rowCount(menu); ++id) {
        const MenuNode child{id, menuProperties(menu, id, names), {}};
        node.children.append(QDBusVariant(QVariant::fromValue(child)));
    }
    return node;
}

bool isMenuId(const StatusMenu* menu, int id)
{
    return id >= menuRootId && id <= rowCount(menu);
}

} // namespace quindle
