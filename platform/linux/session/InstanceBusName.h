#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include <QByteArray>
#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

#include "platform/linux/session/BacklogGuard.h"
#include "platform/linux/session/BusLink.h"
#include "platform/linux/session/Instance.h"

namespace quindle {

/// What other processes of the session may ask of the running one.
class ApplicationAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// `activated` gets the token of the start that asks, empty where it has none.
    using Activated = std::function<void(const QByteArray& token)>;

    ApplicationAdaptor(QObject* object, Activated activated);

public Q_SLOTS:
    void Activate(const QVariantMap& platformData);

private:
    Activated m_activated;
};

/// Makes sure that one process runs for each session bus: the bus gives a name to one connection only. The
/// name is taken again on each bus that comes later. A peer that floods it with calls is not answered for a
/// while. Main thread only.
class InstanceBusName : public QObject
{
    Q_OBJECT

public:
    explicit InstanceBusName(InstanceName name, QObject* parent = nullptr);

    /// Takes the name, or asks its owner to show itself and waits up to four seconds for that. Nothing where
    /// there is no bus, or one that gives no names; the name is then taken once there is a bus.
    std::optional<StartAnswer> start();

    /// Windows that `showRequested` activates may come to the front on behalf of the start that asks.
    void setShowRequested(std::function<void()> showRequested) { m_showRequested = std::move(showRequested); }

    /// Sets what happens when another process has the name on a bus that came later.
    void setTakenByAnother(std::function<void()> taken) { m_takenByAnother = std::move(taken); }

private:
    void show(const QByteArray& activationToken) const;
    void offer(QDBusConnection& connection);
    void answerCalls(QDBusConnection& connection);
    void pauseAnswers();
    void takeLater(const QDBusConnection& connection);
    std::optional<StartAnswer> startOn(const QDBusConnection& connection) const;

    InstanceName m_name;
    BusLink m_link;
    BacklogGuard m_guard;
    bool m_isStarted = false;
    std::function<void()> m_showRequested;
    std::function<void()> m_takenByAnother;
};

} // namespace quindle
