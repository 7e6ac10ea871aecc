#pragma once

#include <functional>
#include <memory>

#include <QString>

#include "platform/Platform.h"
#include "platform/linux/settings/LinuxUserDefaults.h"

namespace quindle {

/// The services of this Linux computer.
class LinuxPlatform
{
public:
    /// `systemRoot` replaces /sys when it is not empty. Needs a QCoreApplication.
    explicit LinuxPlatform(const QString& systemRoot,
                           SettingsAccess settingsAccess = SettingsAccess::ReadAndWrite);
    ~LinuxPlatform();

    /// What times are estimated from, for another process that shows the same batteries; empty before there
    /// is anything. The setter continues from there.
    QByteArray powerMemory() const;
    void setPowerMemory(const QByteArray& memory);

    /// Makes the run loop skip refreshes that would find nothing new, while `mayRest` allows it.
    void restWhileNothingChanges(std::function<bool()> mayRest);

    Bundle& bundle() const;
    RunLoop& runLoop();
    UserDefaultsDatabases& userDefaults();

    /// All of them, with a status bar of the caller's choice.
    Platform services(StatusBar& statusBar);

private:
    struct Services;
    std::unique_ptr<Services> m_services;
};

} // namespace quindle
