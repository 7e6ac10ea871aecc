#pragma once

#include <functional>
#include <vector>

#include <QDBusAbstractAdaptor>
#include <QDBusVariant>
#include <QList>
#include <QStringList>

#include "platform/linux/statusitem/MenuLayout.h"
#include "platform/linux/statusitem/MenuTypes.h"

namespace quindle {

class StatusMenu;

/// A StatusMenu as hosts see it on the bus. Names and types are the protocol's.
class MenuAdaptor final : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    /// `aboutToChoose` is called before a row's action, so that its window may come to the front; `opening`
    /// before a host shows the menu.
    MenuAdaptor(
        QObject* object, std::function<void()> aboutToChoose, std::function<void()> opening = [] {});

    /// The menu to show, null for an empty one. Rows that are added later show at the host's next query.
    void setMenu(StatusMenu* menu);

    /// Sets what the present host needs.
    void setForm(const MenuForm& form);

    /// Announces the rows that have changed since the last announcement, row by row, because some hosts close
    /// an open menu when its layout changes.
    void announceChanges();

    uint version() const;
    QString status() const;
    QString textDirection() const;
    QStringList iconThemePath() const;

public Q_SLOTS:
    uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                   quindle::MenuNode& layout);
    QList<quindle::MenuRowProperties> GetGroupProperties(const QList<int>& ids,
                                                         const QStringList& propertyNames);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    QList<int> EventGroup(const QList<quindle::MenuEvent>& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

Q_SIGNALS:
    void ItemsPropertiesUpdated(const QList<quindle::MenuRowProperties>& updatedProps,
                                const QList<quindle::MenuRowPropertyNames>& removedProps);
    void LayoutUpdated(uint revision, int parent);
    void ItemActivationRequested(int id, uint timestamp);

private:
    void choose(int id);

    StatusMenu* m_menu = nullptr;
    MenuForm m_form;
    std::function<void()> m_aboutToChoose;
    std::function<void()> m_opening;
    std::vector<QVariantMap> m_announced; ///< of each row; the row with id n at n - 1
    uint m_revision = 0;
};

} // namespace quindle
