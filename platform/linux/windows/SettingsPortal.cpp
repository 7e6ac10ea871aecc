#include "platform/linux/windows/SettingsPortal.h"

#include <utility>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include "platform/linux/session/BusLink.h"
#include "platform/linux/windows/PortalWishes.h"

namespace quindle {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

/// Nothing where the answer is of another type.
PortalSettings settingsIn(const QDBusMessage& answer)
{
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QStringLiteral("a{sa{sv}}"))
        return {};
    return qdbus_cast<PortalSettings>(answer.arguments().constFirst());
}

} // namespace

SettingsPortal::SettingsPortal(RunLoop& runLoop, std::function<void(const DesktopWishes&)> changed)
    : m_changed(std::move(changed))
    , m_changes(runLoop, 0.0, [this] { ask(); })
{
}

SettingsPortal::~SettingsPortal() = default;

void SettingsPortal::followSession()
{
    m_link = std::make_unique<BusLink>(QDBusConnection::SessionBus, QStringLiteral("quindle-portal"));
    m_link->followShared();
    m_link->open([this](QDBusConnection& bus) { setBus(bus); },
                 [this] { setBus(QDBusConnection(QString())); });
}

void SettingsPortal::setBus(const QDBusConnection& bus)
{
    m_question.reset();
    m_bus = bus;
    if (!m_bus.isConnected())
        return;
    // From anybody: of the signal only the moment is used, and not more often than twice a second.
    m_bus.connect(QString(), path, settingsInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(settingChanged()));
    // One that the bus cannot start comes with the desktop, perhaps after the window.
    const QString dbus = QStringLiteral("org.freedesktop.DBus");
    m_bus.connect(dbus, QStringLiteral("/org/freedesktop/DBus"), dbus, QStringLiteral("NameOwnerChanged"),
                  {service}, QString(), this, SLOT(ownerChanged(QString, QString, QString)));
    m_changes.request();
}

void SettingsPortal::settingChanged()
{
    m_changes.request();
}

void SettingsPortal::ownerChanged(const QString& /*name*/, const QString& /*before*/, const QString& now)
{
    // Not of one that goes: the question would start it again.
    if (!now.isEmpty())
        m_changes.request();
}

void SettingsPortal::ask()
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(service, path, settingsInterface, QStringLiteral("ReadAll"));
    question << namespacesOfWishes();
    m_question = std::make_unique<QDBusPendingCallWatcher>(m_bus.asyncCall(question));
    connect(m_question.get(), &QDBusPendingCallWatcher::finished, this, &SettingsPortal::hear);
}

void SettingsPortal::hear()
{
    const QDBusMessage answer = m_question->reply();
    m_question.release()->deleteLater();
    // A portal that goes takes nothing back.
    if (answer.type() != QDBusMessage::ReplyMessage)
        return;
    const DesktopWishes wishes = wishesFrom(settingsIn(answer));
    if (std::exchange(m_wishes, wishes) != wishes)
        m_changed(wishes);
}

} // namespace quindle

#include "moc_SettingsPortal.cpp"
