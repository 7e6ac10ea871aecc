#pragma once

#include <optional>

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QList>

#include "platform/linux/os/BluetoothBattery.h"
#include "platform/linux/session/PresentBus.h"

namespace quindle {

/// The batteries that BlueZ (org.bluez on the system bus) reports. It is asked only when somebody looks, so
/// that a device's changes do not wake this process; a service that does not run is not started. Main thread
/// only.
class BluetoothBatteries
{
public:
    /// `patience`, in milliseconds, is how long an answer is waited for.
    explicit BluetoothBatteries(int patience = 300);

    /// By the order of BlueZ' objects. When asked repeatedly it gives the answer to its last question without
    /// waiting; after a pause it waits for the answer. None without a bus or BlueZ.
    QList<BluetoothBattery> latest();

private:
    QDBusPendingCall ask();

    int m_patience;
    PresentBus m_bus;
    std::optional<QDBusPendingCall> m_question;
    QElapsedTimer m_asked;
    QList<BluetoothBattery> m_batteries;
};

/// The batteries in an answer of ObjectManager.GetManagedObjects; none in any other message.
QList<BluetoothBattery> bluetoothBatteriesFrom(const QDBusMessage& answer);

} // namespace quindle
