#pragma once

#include <memory>

#include "app/HelperAppDelegate.h"
#include "battery/QDBattery.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "platform/Image.h"
#include "platform/linux/power/LinuxPowerSources.h"
#include "platform/linux/power/LinuxRegistry.h"
#include "platform/linux/power/PowerSampler.h"
#include "settings/ApplicationPreferences.h"
#include "tests/app/LaunchedHelper.h"
#include "tests/platform/linux/power/Patience.h"
#include "tests/platform/linux/power/SupplyTree.h"

namespace quindle {

/// A helper that reads its batteries from files as this computer's are read; all else is invented. Fill in
/// `tree` before the launch.
struct HelperOnSupplies
{
    SupplyTree tree;
    std::chrono::milliseconds now{0};
    ReadFunction read = readDescriptor;
    PowerSampler sampler{tree.path(), [this](auto... arguments) { return read(arguments...); },
                         [this] { return now; }, endlessPatience};
    LinuxRegistry registry{sampler, {}};
    LinuxPowerSources powerSources{sampler};
    FakePlatform others;
    Platform platform = others.platform.with({.registry = &registry, .powerSources = &powerSources});
    MainInterface interface;
    std::unique_ptr<ApplicationPreferences> preferences;
    std::unique_ptr<HelperAppDelegate> delegate;

    void launch(const QString& titleTemplate)
    {
        others.userDefaults.suiteDefaults.values[QStringLiteral("customStatusBar")] = titleTemplate;
        preferences = std::make_unique<ApplicationPreferences>(platform);
        delegate = std::make_unique<HelperAppDelegate>(platform, *preferences, interface, &QDMac::init,
                                                       noControllers);
        delegate->applicationDidFinishLaunching();
    }

    /// Lets ten seconds pass, with the refreshes that come in them.
    void passTenSeconds()
    {
        now += std::chrono::seconds(10);
        others.runLoop.advance(10);
    }

    QString title() const { return delegate->statusItem().title(); }
    QString toolTip() const
    {
        const QStringList& all = others.statusBar.items.at(0)->toolTipsSet;
        return all.isEmpty() ? QString() : all.last();
    }
};

/// A battery of 6000 mAh that has 3000 mAh left, with every value a title may show.
inline SupplyTree::Texts dischargingBattery()
{
    return {{"type", "Battery"},
            {"present", "1"},
            {"status", "Discharging"},
            {"capacity", "50"},
            {"charge_now", "3000000"},
            {"charge_full", "6000000"},
            {"charge_full_design", "6500000"},
            {"voltage_now", "12000000"},
            {"voltage_min_design", "11400000"},
            {"current_now", "1000000"},
            {"cycle_count", "12"},
            {"temp", "301"},
            {"time_to_empty_now", "10800"},
            {"manufacturer", "SMP"},
            {"model_name", "bq20z451"}};
}

} // namespace quindle
