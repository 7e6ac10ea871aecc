#include "app/MachineSteps.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>

#include <QTimer>

#include "app/HelperAppDelegate.h"
#include "battery/QDBattery.h"
#include "mac/QDMac.h"
#include "platform/Platform.h"
#include "platform/recorded/RecordedPlatform.h"

namespace quindle {

namespace {

void playOnBattery(MachineAction action, QDBattery& battery)
{
    switch (action) {
    case MachineAction::BatteryToggleAge:
        battery.toggleAge();
        break;
    case MachineAction::BatteryToggleTemperatureMode:
        battery.toggleTemperatureMode();
        break;
    case MachineAction::BatteryLoadSettings:
        battery.loadSettings();
        break;
    case MachineAction::BatteryClose:
        battery.close();
        break;
    case MachineAction::BatteryOpen:
        battery.open();
        break;
    default:
        break;
    }
}

void play(MachineAction action, RecordedPlatform& recorded, const Platform& platform,
          HelperAppDelegate& delegate)
{
    switch (action) {
    case MachineAction::MacToggleAge:
        delegate.myMac().toggleAge();
        break;
    case MachineAction::Sleep:
        recorded.workspaceNotifications.sleep();
        break;
    case MachineAction::Wake:
        recorded.workspaceNotifications.wake();
        break;
    case MachineAction::SettingsChanged:
        platform.distributedNotificationCenter.post(QStringLiteral("SettingsChangedNotification"));
        break;
    case MachineAction::WillUpdateImmediately:
        platform.distributedNotificationCenter.post(QStringLiteral("WillUpdateImmediately"));
        break;
    case MachineAction::OpenApplication:
        delegate.openApplication();
        break;
    default:
        if (QDBattery* battery = delegate.myMac().Battery())
            playOnBattery(action, *battery);
    }
}

/// A timer counts milliseconds in 32 bits; a file may say any number of seconds.
void after(double seconds, QObject& context, const std::function<void()>& action)
{
    constexpr double longestWait = 86400;
    const double wait = std::min(seconds, longestWait);
    const auto next = [rest = seconds - wait, &context, action] {
        if (rest > 0)
            after(rest, context, action);
        else
            action();
    };
    QTimer::singleShot(std::chrono::milliseconds(std::llround(wait * 1000)), &context, next);
}

void playFrom(std::size_t index, const std::vector<MachineStep>& steps, RecordedPlatform& recorded,
              const Platform& platform, HelperAppDelegate& delegate,
              const std::function<void(std::size_t)>& entered)
{
    if (index >= steps.size())
        return;
    // Counted from the previous step, not from the start, as the format says. The delegate is the context:
    // the play ends with it, and no timer refers to what has gone.
    after(steps[index].after, delegate, [index, &steps, &recorded, &platform, &delegate, entered] {
        if (entered)
            entered(index + 1);
        playStep(steps[index], recorded, platform, delegate);
        playFrom(index + 1, steps, recorded, platform, delegate, entered);
    });
}

} // namespace

void playStep(const MachineStep& step, RecordedPlatform& recorded, const Platform& platform,
              HelperAppDelegate& delegate)
{
    recorded.computer.enter(step);
    for (const MachineAction action : step.actions)
        play(action, recorded, platform, delegate);
    QDBattery* battery = delegate.myMac().Battery();
    if (battery && battery->updateTimer()) // the demonstration battery has none, and reads no registry
        battery->updateData();
    delegate.updateStatusBarTitle();
}

void playStepsInTime(const std::vector<MachineStep>& steps, RecordedPlatform& recorded,
                     const Platform& platform, HelperAppDelegate& delegate,
                     const std::function<void(std::size_t)>& entered)
{
    playFrom(0, steps, recorded, platform, delegate, entered);
}

} // namespace quindle
