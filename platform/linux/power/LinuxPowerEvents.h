#pragma once

#include <memory>

#include "platform/PowerSources.h"

class QSocketNotifier;
struct udev;
struct udev_monitor;

namespace quindle {

/// The kernel's events of the class "power_supply", as udev's daemon passes them on, or straight from the
/// kernel where no such daemon runs. Events of other devices do not wake the process in the first case. Where
/// they are not available one line is logged and no event comes; the next observer tries again.
class LinuxPowerEvents : public PowerEvents
{
public:
    /// `beforeObserver` is called before the observer, whenever it is.
    explicit LinuxPowerEvents(std::function<void()> beforeObserver);
    ~LinuxPowerEvents() override;

    void setObserver(std::function<void()> observer) override;

    /// As if the kernel had announced a change, but for `beforeObserver`.
    void announce() const;

private:
    struct Release
    {
        void operator()(udev* context) const;
        void operator()(udev_monitor* monitor) const;
    };

    bool open();
    bool takeEvents();
    void readEvents();

    std::function<void()> m_beforeObserver;
    std::function<void()> m_observer;
    std::unique_ptr<udev, Release> m_udev;
    std::unique_ptr<udev_monitor, Release> m_monitor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quindle
