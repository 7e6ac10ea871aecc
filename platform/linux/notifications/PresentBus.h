#pragma once

#include <QDBusConnection>
#include <QString>

namespace quindle {

/// The session bus for those who need it a few times a day: nothing of it is kept, and no bus that has gone
/// is waited for. Main thread only.
class PresentBus
{
public:
    /// `ownName` is that of a connection of its own, made once the shared one has gone.
    explicit PresentBus(QString ownName);
    ~PresentBus();

    PresentBus(const PresentBus&) = delete;
    PresentBus& operator=(const PresentBus&) = delete;

    /// The process's connection, else one of its own: the shared one does not come back when its bus has
    /// gone. Not connected where there is no bus.
    QDBusConnection connection();

private:
    QString m_ownName;
    QDBusConnection m_own;
};

} // namespace quindle
