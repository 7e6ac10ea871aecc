#pragma once

#include <memory>

#include "app/ApplicationPreferences.h"
#include "app/HelperAppDelegate.h"
#include "mac/QDMac.h"
#include "menubar/MainInterface.h"
#include "platform/Image.h"
#include "preferences/PreferencesPresenter.h"
#include "tests/support/FakePlatform.h"

namespace quindle {

struct CountingPreferences : PreferencesPresenter
{
    int shown = 0;
    int menuBarTextShown = 0;

    void showPreferencesWindow() override { ++shown; }
    void showHelperPreferences() override { ++menuBarTextShown; }
};

/// A helper on an invented computer. Fill in `platform` first, then make the delegate and launch it.
struct Helper
{
    FakePlatform platform;
    MainInterface interface;
    CountingPreferences preferencesWindow;
    std::unique_ptr<ApplicationPreferences> preferences;
    std::unique_ptr<HelperAppDelegate> delegate;

    void make()
    {
        preferences = std::make_unique<ApplicationPreferences>(platform.platform);
        delegate = std::make_unique<HelperAppDelegate>(platform.platform, *preferences, interface,
                                                       preferencesWindow, &QDMac::init);
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
