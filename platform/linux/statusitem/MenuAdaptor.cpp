#include "platform/linux/statusitem/MenuAdaptor.h"

#include <utility>

#include "common/Translation.h"
#include "platform/linux/statusitem/MenuLayout.h"

namespace quindle {

namespace {

constexpr int wholeMenu = 0;

std::vector<QVariantMap> allRowProperties(const StatusMenu* menu, const MenuForm& form)
{
    std::vector<QVariantMap> all;
    if (!menu)
        return all;
    for (const StatusMenu::Row& row : menu->rows())
        all.push_back(menuRowProperties(row, form));
    return all;
}

} // namespace

MenuAdaptor::MenuAdaptor(QObject* object, std::function<void()> aboutToChoose, std::function<void()> opening)
    : QDBusAbstractAdaptor(object)
    , m_aboutToChoose(std::move(aboutToChoose))
    , m_opening(std::move(opening))
{
    registerMenuTypes();
}

void MenuAdaptor::setMenu(StatusMenu* menu)
{
    m_menu = menu;
    m_announced = allRowProperties(menu, m_form);
    ++m_revision;
    Q_EMIT LayoutUpdated(m_revision, menuRootId);
}

void MenuAdaptor::setForm(const MenuForm& form)
{
    if (std::exchange(m_form, form) == form)
        return;
    m_announced = allRowProperties(m_menu, m_form);
    ++m_revision;
    Q_EMIT LayoutUpdated(m_revision, menuRootId);
}

void MenuAdaptor::announceChanges()
{
    std::vector<QVariantMap> now = allRowProperties(m_menu, m_form);
    QList<MenuRowProperties> changed;
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (i >= m_announced.size() || m_announced[i] != now[i])
            changed.append({static_cast<int>(i) + 1, now[i]});
    }
    m_announced = std::move(now);
    if (!changed.isEmpty())
        Q_EMIT ItemsPropertiesUpdated(changed, {});
}

uint MenuAdaptor::version() const
{
    return 3;
}

QString MenuAdaptor::status() const
{
    return QStringLiteral("normal");
}

QString MenuAdaptor::textDirection() const
{
    return runsRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

QStringList MenuAdaptor::iconThemePath() const
{
    return {};
}

uint MenuAdaptor::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                            MenuNode& layout)
{
    layout = menuLayout(m_menu, parentId, recursionDepth, propertyNames, m_form);
    return m_revision;
}

QList<MenuRowProperties> MenuAdaptor::GetGroupProperties(const QList<int>& ids,
                                                         const QStringList& propertyNames)
{
    QList<MenuRowProperties> group;
    for (const int id : ids) {
        if (isMenuId(m_menu, id))
            group.append({id, menuProperties(m_menu, id, propertyNames, m_form)});
    }
    return group;
}

QDBusVariant MenuAdaptor::GetProperty(int id, const QString& name)
{
    const QVariant value = menuProperties(m_menu, id, {name}, m_form).value(name);
    // A variant on the bus cannot be empty.
    return QDBusVariant(value.isValid() ? value : QVariant(QString()));
}

void MenuAdaptor::Event(int id, const QString& eventId, const QDBusVariant& /*data*/, uint /*timestamp*/)
{
    if (eventId == QLatin1String("clicked"))
        choose(id);
}

QList<int> MenuAdaptor::EventGroup(const QList<MenuEvent>& events)
{
    QList<int> unknown;
    for (const MenuEvent& event : events) {
        if (isMenuId(m_menu, event.id))
            Event(event.id, event.name, event.data, event.timestamp);
        else
            unknown.append(event.id);
    }
    return unknown;
}

// Nothing is made on demand: the rows are always up to date.
bool MenuAdaptor::AboutToShow(int id)
{
    if (id == wholeMenu)
        m_opening();
    return false;
}

QList<int> MenuAdaptor::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors)
{
    for (const int id : ids) {
        if (!isMenuId(m_menu, id))
            idErrors.append(id);
        else if (id == wholeMenu)
            m_opening();
    }
    return {};
}

void MenuAdaptor::choose(int id)
{
    // Afterwards: the action may end the program or wait for the user, and the host needs its answer first.
    const auto act = [this, id] {
        if (!m_menu)
            return;
        m_aboutToChoose();
        m_menu->choose(id);
    };
    QMetaObject::invokeMethod(this, act, Qt::QueuedConnection);
}

} // namespace quindle

#include "moc_MenuAdaptor.cpp"
