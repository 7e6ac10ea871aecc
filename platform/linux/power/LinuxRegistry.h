#pragma once

#include <unordered_map>

#include <QString>

#include "platform/IORegistry.h"
#include "platform/linux/os/TimelyFiles.h"

namespace quindle {

class PowerSampler;

/// The registry of a Linux computer: "AppleSmartBattery" is composed of the system's batteries,
/// "IOPlatformExpertDevice" of what the firmware says about the computer.
class LinuxRegistry final : public IORegistry
{
public:
    /// Where the firmware's texts are; an empty path is not read.
    struct Folders
    {
        QString dmi;        ///< "/sys/class/dmi/id"
        QString deviceTree; ///< "/proc/device-tree"
    };

    /// `sampler` is shared with the power sources and lives longer than this object.
    LinuxRegistry(PowerSampler& sampler, Folders folders);

    RegistryObject serviceMatchingName(const QString& name) override;
    RegistryObject serviceMatchingClass(const QString& className) override;
    QVariant property(RegistryObject object, const QString& key) override;
    QVariantMap properties(RegistryObject object) override;
    IOStatus release(RegistryObject object) override;
    std::optional<bool> isMatched(const QString& name) override;

private:
    enum class Entry {
        Battery,
        Computer,
    };

    RegistryObject open(Entry entry);
    const QVariantMap& batteryEntry();
    QVariant computerProperty(const QString& key);
    QVariantMap computerProperties();

    PowerSampler& m_sampler;
    Folders m_folders;
    TimelyFiles m_files;
    QVariantMap m_lastBatteryEntry; ///< what an open entry still answers when its battery has gone
    std::unordered_map<RegistryObject, Entry> m_open;
    RegistryObject m_lastHandle = 0;
};

} // namespace quindle
