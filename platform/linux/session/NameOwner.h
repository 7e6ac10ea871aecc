#pragma once

#include <functional>

#include <QDBusConnection>
#include <QObject>
#include <QString>

class QDBusPendingCallWatcher;

namespace quindle {

/// Follows who owns a well-known name on a bus. Nothing waits for the bus, and only signals of the bus itself
/// count.
class NameOwner final : public QObject
{
    Q_OBJECT

public:
    /// Gets the owner's unique name, which is empty while the name has no owner.
    using Changed = std::function<void(const QString& owner)>;

    /// Calls `changed` later, when the owner is first known and at each change.
    NameOwner(const QDBusConnection& bus, const QString& name, Changed changed, QObject* parent = nullptr);

private:
    void hearAnswer(QDBusPendingCallWatcher& answer);
    void setOwner(const QString& owner);

    Changed m_changed;
    QString m_owner;
    bool m_isKnown = false;
};

} // namespace quindle
