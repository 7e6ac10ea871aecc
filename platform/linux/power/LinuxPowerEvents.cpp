#include "platform/linux/power/LinuxPowerEvents.h"

#include <cerrno>
#include <utility>

#include <QLoggingCategory>
#include <QSocketNotifier>

#include <libudev.h>
#include <unistd.h>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(powerLog, "quindle.power")

/// Only the daemon's messages can be filtered in the kernel, but without the daemon (in a container) none
/// ever come.
const char* eventSource()
{
    return access("/run/udev/control", F_OK) == 0 ? "udev" : "kernel";
}

} // namespace

void LinuxPowerEvents::Release::operator()(udev* context) const
{
    udev_unref(context);
}

void LinuxPowerEvents::Release::operator()(udev_monitor* monitor) const
{
    udev_monitor_unref(monitor);
}

LinuxPowerEvents::LinuxPowerEvents(std::function<void()> beforeObserver)
    : m_beforeObserver(std::move(beforeObserver))
{
}

LinuxPowerEvents::~LinuxPowerEvents() = default;

void LinuxPowerEvents::setObserver(std::function<void()> observer)
{
    m_observer = std::move(observer);
    if (m_notifier)
        return;
    if (!open()) {
        // No reason to give up: the timers still refresh.
        qCWarning(powerLog, "no events of the power supplies: changes show at the next refresh");
        return;
    }
    m_notifier =
        std::make_unique<QSocketNotifier>(udev_monitor_get_fd(m_monitor.get()), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { readEvents(); });
}

void LinuxPowerEvents::announce() const
{
    if (m_observer)
        m_observer();
}

bool LinuxPowerEvents::open()
{
    m_udev.reset(udev_new());
    if (m_udev)
        m_monitor.reset(udev_monitor_new_from_netlink(m_udev.get(), eventSource()));
    udev_monitor* const monitor = m_monitor.get();
    return monitor &&
           udev_monitor_filter_add_match_subsystem_devtype(monitor, "power_supply", nullptr) >= 0 &&
           udev_monitor_enable_receiving(monitor) >= 0;
}

bool LinuxPowerEvents::takeEvents()
{
    bool any = false;
    while (udev_device* const device = udev_monitor_receive_device(m_monitor.get())) {
        // Which supply it was does not matter: the next sample reads them all.
        udev_device_unref(device);
        any = true;
    }
    return any || errno == ENOBUFS; // there were more than the socket holds
}

void LinuxPowerEvents::readEvents()
{
    if (!takeEvents())
        return;
    // Otherwise the sample that was taken before the event would answer the observer.
    m_beforeObserver();
    m_observer();
}

} // namespace quindle
