#include "platform/linux/notifications/LinuxPowerManagers.h"

#include <array>
#include <utility>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace quindle {

namespace {

constexpr int patience = 5000; // milliseconds

struct KnownManager
{
    QLatin1StringView busName;
    const char* desktop = nullptr;
};

// Names that only the manager itself takes. org.freedesktop.PowerManagement is not among them: programs that
// only keep the computer awake take it too.
constexpr std::array managers{
    KnownManager{QLatin1StringView("org.gnome.SettingsDaemon.Power"), "GNOME"},
    KnownManager{QLatin1StringView("org.cinnamon.SettingsDaemon.Power"), "Cinnamon"},
    KnownManager{QLatin1StringView("org.kde.Solid.PowerManagement"), "Plasma"},
    KnownManager{QLatin1StringView("org.xfce.PowerManager"), "Xfce"},
    KnownManager{QLatin1StringView("org.mate.PowerManager"), "MATE"},
    KnownManager{QLatin1StringView("org.lxqt.lxqt-powermanagement"), "LXQt"},
};

QDBusMessage questionForNames()
{
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    return QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                          QStringLiteral("ListNames"));
}

} // namespace

LinuxPowerManagers::LinuxPowerManagers()
    : m_bus(QDBusConnection::SessionBus, QStringLiteral("quindle-power-managers"))
{
}

void LinuxPowerManagers::ask(std::function<void(const QString& desktop)> answered)
{
    // Without a bus the call fails, and the answer still comes.
    auto* answer =
        new QDBusPendingCallWatcher(m_bus.connection().asyncCall(questionForNames(), patience), this);
    const auto hear = [answer, answered = std::move(answered)] {
        answer->deleteLater();
        const QDBusPendingReply<QStringList> names = *answer;
        answered(names.isValid() ? desktopThatWarns(names.value()) : QString());
    };
    // Later even so: the caller is never answered during its call.
    if (answer->isFinished())
        QMetaObject::invokeMethod(this, hear, Qt::QueuedConnection);
    else
        connect(answer, &QDBusPendingCallWatcher::finished, this, hear);
}

QString desktopThatWarns(const QStringList& busNames)
{
    for (const KnownManager& manager : managers)
        if (busNames.contains(manager.busName))
            return QString::fromLatin1(manager.desktop);
    return {};
}

} // namespace quindle

#include "moc_LinuxPowerManagers.cpp"
