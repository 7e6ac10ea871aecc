#include "platform/macos/MacNotifier.h"

#include <utility>

#include <QLoggingCategory>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(macNotifierLog, "quindle.warnings")

} // namespace

MacNotifier::MacNotifier(NoticeCalls& calls)
    : m_calls(calls)
    , m_alive(std::make_shared<int>())
{
}

void MacNotifier::show(const Notification& notification)
{
    m_waiting = notification;
    if (std::exchange(m_isAsking, true))
        return;
    // Each time: the user may have decided otherwise since.
    m_calls.askPermission([this, alive = std::weak_ptr(m_alive)](bool isGranted, const QString& fault) {
        if (!alive.expired())
            hearPermission(isGranted, fault);
    });
}

void MacNotifier::withdraw()
{
    m_waiting.reset();
    if (std::exchange(m_isWanted, false))
        m_calls.withdraw();
}

void MacNotifier::hearPermission(bool isGranted, const QString& fault)
{
    m_isAsking = false;
    const auto notification = std::exchange(m_waiting, std::nullopt);
    if (!notification)
        return;
    if (!isGranted) {
        report(fault.isEmpty() ? QStringLiteral("the user does not allow them") : fault);
        return;
    }
    m_isWanted = true;
    m_calls.show(*notification, [this, alive = std::weak_ptr(m_alive)](const QString& failure) {
        if (!alive.expired())
            hearShown(failure);
    });
}

void MacNotifier::hearShown(const QString& fault)
{
    if (!fault.isEmpty())
        report(fault);
    else
        m_hasReported = false;
    // It may have been taken back before it was there.
    if (!m_isWanted)
        m_calls.withdraw();
}

void MacNotifier::report(const QString& fault)
{
    // Once until one is shown: a user who does not allow them would fill the log.
    if (!std::exchange(m_hasReported, true))
        qCWarning(macNotifierLog).noquote() << QStringLiteral("notifications are not shown: %1").arg(fault);
}

void MacPowerManagers::ask(std::function<void(const QString& desktop)> answered)
{
    // The system always warns by itself. It answers later, like those that have to be asked.
    QMetaObject::invokeMethod(
        this, [answered = std::move(answered)] { answered(QStringLiteral("macOS")); }, Qt::QueuedConnection);
}

} // namespace quindle
