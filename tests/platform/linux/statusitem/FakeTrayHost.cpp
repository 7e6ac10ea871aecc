#include "tests/platform/linux/statusitem/FakeTrayHost.h"
#include "tests/support/Texts.h"

#include <array>

#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QEventLoop>

namespace quindle {

namespace {

QString watcherName()
{
    return u("org.kde.StatusNotifierWatcher");
}

} // namespace

FakeTrayHost::FakeTrayHost(QDBusConnection bus)
    : m_bus(std::move(bus))
{
    m_bus.registerObject(u("/StatusNotifierWatcher"), this,
                         QDBusConnection::ExportAllProperties | QDBusConnection::ExportScriptableSlots);
    struct Row
    {
        const char* interface;
        const char* signal;
    };
    const std::array signals{
        Row{"org.kde.StatusNotifierItem", "NewTitle"},
        Row{"org.kde.StatusNotifierItem", "NewIcon"},
        Row{"org.kde.StatusNotifierItem", "NewAttentionIcon"},
        Row{"org.kde.StatusNotifierItem", "NewToolTip"},
        Row{"org.kde.StatusNotifierItem", "NewStatus"},
        Row{"org.kde.StatusNotifierItem", "XAyatanaNewLabel"},
        Row{"com.canonical.dbusmenu", "ItemsPropertiesUpdated"},
        Row{"com.canonical.dbusmenu", "LayoutUpdated"},
    };
    for (const Row& row : signals)
        m_bus.connect({}, {}, u(row.interface), u(row.signal), this, SLOT(hear(QDBusMessage)));
}

FakeTrayHost::~FakeTrayHost()
{
    QDBusConnection::disconnectFromBus(m_bus.name());
}

bool FakeTrayHost::appear()
{
    return m_bus.registerService(watcherName());
}

void FakeTrayHost::disappear()
{
    m_items.clear();
    m_bus.unregisterService(watcherName());
}

void FakeTrayHost::queueUp()
{
    m_bus.interface()->registerService(watcherName(), QDBusConnectionInterface::QueueService);
}

QDBusMessage FakeTrayHost::call(const char* path, const char* interface, const char* method,
                                const QVariantList& arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(m_itemConnection, u(path), u(interface), u(method));
    message.setArguments(arguments);
    // The item answers from this very thread, so the wait must let it.
    QDBusPendingCallWatcher pending(m_bus.asyncCall(message));
    QEventLoop loop;
    QObject::connect(&pending, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    if (!pending.isFinished())
        loop.exec();
    return pending.reply();
}

QVariant FakeTrayHost::property(const char* path, const char* interface, const char* name)
{
    const QDBusMessage answer = call(path, "org.freedesktop.DBus.Properties", "Get", {u(interface), u(name)});
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

QVariant FakeTrayHost::itemProperty(const char* name)
{
    return property("/StatusNotifierItem", "org.kde.StatusNotifierItem", name);
}

QStringList FakeTrayHost::takeSignals()
{
    m_messages.clear();
    return std::exchange(m_signals, {});
}

void FakeTrayHost::RegisterStatusNotifierItem(const QString& path)
{
    ++m_registrations;
    m_itemConnection = message().service();
    if (!m_forgetful)
        m_items.append(m_itemConnection + path);
}

void FakeTrayHost::hear(const QDBusMessage& message)
{
    m_signals.append(message.member());
    m_messages.append(message);
}

} // namespace quindle
