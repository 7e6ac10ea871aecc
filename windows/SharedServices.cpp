#include "windows/SharedServices.h"

#include <utility>

#include "windows/HelperEnd.h"

namespace quindle {

namespace {

using Kind = WindowMessage::Kind;

class IdleTimer : public Timer
{
public:
    void invalidate() override {}
};

} // namespace

HelpersRunLoop::HelpersRunLoop(HelperEnd& helper)
    : m_helper(helper)
{
}

std::shared_ptr<Timer> HelpersRunLoop::scheduleRepeatingTimer(double /*interval*/, double /*tolerance*/,
                                                              std::function<void()> /*fire*/)
{
    // Never fired: the windows refresh when the helper does.
    return std::make_shared<IdleTimer>();
}

Punctuality HelpersRunLoop::keepPunctual()
{
    if (Punctuality watched = m_watched.lock())
        return watched;
    m_helper.send(Kind::Watched, 1);
    // With several watches only the end of the last one counts.
    Punctuality watched(this, [this](void*) { m_helper.send(Kind::Watched, 0); });
    m_watched = watched;
    return watched;
}

HelpersNotifications::HelpersNotifications(HelperEnd& helper)
    : m_helper(helper)
{
}

void HelpersNotifications::addObserver(const QString& name, NotificationCenter::Observer observer)
{
    m_observers.addObserver(name, std::move(observer));
}

void HelpersNotifications::post(const QString& name)
{
    m_observers.post(name);
    m_helper.send({.kind = Kind::Announced, .text = name.toUtf8()});
}

void HelpersNotifications::hear(const QString& name)
{
    m_observers.post(name);
}

HelpersApplication::HelpersApplication(HelperEnd& helper, Application& windows)
    : m_helper(helper)
    , m_windows(windows)
{
}

void HelpersApplication::terminate()
{
    m_helper.send(Kind::Quit);
    // Without waiting for a helper that may be busy: the user sees the choice at once.
    m_windows.terminate();
}

SharedTitle::SharedTitle(HelperEnd& helper, StatusBarTitle& own)
    : m_helper(helper)
    , m_own(own)
{
}

void SharedTitle::updateStatusBarTitle()
{
    m_own.updateStatusBarTitle();
    m_helper.send(Kind::RefreshTitle);
}

void SharedTitle::reloadBattery()
{
    m_own.reloadBattery();
    m_helper.send(Kind::ReloadBattery);
}

} // namespace quindle
