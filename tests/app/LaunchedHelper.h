#pragma once

#include <memory>

#include "app/HelperAppDelegate.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "platform/Image.h"
#include "settings/ApplicationPreferences.h"
#include "tests/support/FakePlatform.h"

namespace quindle {

/// Counts how often both windows are shown.
struct ShownWindows
{
    int preferences = 0;
    int menuBarText = 0;
};

class CountingWindow : public WindowController, public PreferencesWindowController
{
public:
    explicit CountingWindow(ShownWindows& shown)
        : m_shown(shown)
    {
    }

    void showWindow() override { ++m_shown.menuBarText; }
    void showPreferencesWindow() override { ++m_shown.preferences; }

private:
    ShownWindows& m_shown;
};

/// A helper on an invented computer. Fill in `platform` first, then make the delegate and launch it.
struct Helper
{
    FakePlatform platform;
    MainInterface interface;
    ShownWindows windowsShown;
    std::unique_ptr<ApplicationPreferences> preferences;
    std::unique_ptr<HelperAppDelegate> delegate;

    void make()
    {
        preferences = std::make_unique<ApplicationPreferences>(platform.platform);
        delegate = std::make_unique<HelperAppDelegate>(platform.platform, *preferences, interface,
                                                       &QDMac::init, controllers());
    }

    ControllerFactory controllers()
    {
        return [this](HelperAppDelegate&) {
            DelegateControllers made;
            made.preferencesWindow = std::make_unique<CountingWindow>(windowsShown);
            made.preferencesController = std::make_unique<CountingWindow>(windowsShown);
            return made;
        };
    }

    void launch()
    {
        make();
        delegate->applicationDidFinishLaunching();
    }

    /// A battery of 100 mAh that holds `charge` mAh, not charging and without an adapter.
    void setBattery(qint64 charge, qint64 design = 100)
    {
        platform.battery() = {{QStringLiteral("CurrentCapacity"), charge},
                              {QStringLiteral("MaxCapacity"), qint64{100}},
                              {QStringLiteral("DesignCapacity"), design},
                              {QStringLiteral("IsCharging"), false},
                              {QStringLiteral("ExternalConnected"), false}};
    }

    void setRegistry(const char* key, const QVariant& value)
    {
        platform.battery()[QLatin1String(key)] = value;
    }

    void setShared(const char* key, const QVariant& value)
    {
        platform.userDefaults.suiteDefaults.values[QLatin1String(key)] = value;
    }

    StatusItemRecord& record() { return *platform.statusBar.items.at(0); }

    QString title() { return delegate->statusItem().title(); }

    /// The name of the image shown; empty for none.
    QString imageName()
    {
        const auto image = delegate->statusItem().image();
        return image ? image->name() : QString();
    }

    /// Battery first, then status item, as the timers do.
    void refresh();
};

} // namespace quindle
