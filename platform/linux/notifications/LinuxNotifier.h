#pragma once

#include <optional>

#include <QDBusMessage>
#include <QObject>
#include <QString>

#include "platform/Notifier.h"
#include "platform/linux/session/PresentBus.h"

namespace quindle {

/// Shows the notification by the desktop's service (org.freedesktop.Notifications), which the bus may start
/// for it, or by the portal where there is no such service. One call is under way at a time; what is wanted
/// meanwhile is done after it.
class LinuxNotifier final : public QObject, public Notifier
{
    Q_OBJECT

public:
    LinuxNotifier();

    void show(const Notification& notification) override;
    void withdraw() override;

    /// Closes what is shown, and waits a moment for that, because the process is about to end.
    void finish();

private:
    enum class Place { Nowhere, Service, Portal };

    void doNext();
    void showIn(Place place);
    void call(const QDBusMessage& message, void (LinuxNotifier::*answered)(const QDBusMessage&));
    void hearService(const QDBusMessage& answer);
    void hearPortal(const QDBusMessage& answer);
    void hearWithdrawal(const QDBusMessage& answer);
    QDBusMessage showCall() const;
    QDBusMessage withdrawalCall() const;
    void forgetOnAnotherBus();
    void forget();

    PresentBus m_bus;
    std::optional<Notification> m_wanted;
    bool m_hasNews = false; ///< what is wanted differs from the last call
    bool m_isCalling = false;
    Place m_place = Place::Nowhere; ///< where one is shown
    QString m_server;               ///< the one that shows it: another server's numbers mean something else
    quint32 m_number = 0;           ///< that the server gave it
    int m_busNumber = 0;            ///< of the bus that it is on
    bool m_hasReported = false;
};

} // namespace quindle
