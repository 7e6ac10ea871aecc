#pragma once

#include <optional>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QList>

#include "platform/linux/os/BluetoothBattery.h"

namespace quindle {

/// The batteries that BlueZ (org.bluez on the system bus) reports. It is asked only when somebody looks, so
/// that a device's changes do not wake this process; a service that does not run is not started. Main thread
/// only.
class BluetoothBatteries
{
public:
    /// `patience`, in milliseconds, is how long an answer is waited for.
    explicit BluetoothBatteries(int patience = 300);
    ~BluetoothBatteries();

    BluetoothBatteries(const BluetoothBatteries&) = delete;
    BluetoothBatteries& operator=(const BluetoothBatteries&) = delete;

    /// By the order of BlueZ' objects. When asked repeatedly it gives the answer to its last question without
    /// waiting; after a pause it waits for the answer. None without a bus or BlueZ.
    QList<BluetoothBattery> latest();

private:
    QDBusPendingCall ask();
    QDBusConnection bus();

    int m_patience;
    QDBusConnection m_ownBus;
    std::optional<QDBusPendingCall> m_question;
    QElapsedTimer m_asked;
    QList<BluetoothBattery> m_batteries;
};

/// The batteries in an answer of ObjectManager.GetManagedObjects; none in any other message.
QList<BluetoothBattery> bluetoothBatteriesFrom(const QDBusMessage& answer);

} // namespace quindle
