#pragma once

#include <unordered_map>

#include <QString>

#include "platform/IORegistry.h"

namespace quindle {

class BatteryTimes;
class SupplyDirectory;

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

    /// `supplies` and `times` are shared with the power sources and live longer than this object.
    LinuxRegistry(SupplyDirectory& supplies, BatteryTimes& times, Folders folders);

    RegistryObject serviceMatchingName(const QString& name) override;
    RegistryObject serviceMatchingClass(const QString& className) override;
    QVariant property(RegistryObject object, const QString& key) override;
    QVariantMap properties(RegistryObject object) override;
    IOStatus release(RegistryObject object) override;

private:
    enum class Entry {
        Battery,
        Computer,
    };

    RegistryObject open(Entry entry);
    QVariant computerProperty(const QString& key) const;
    QVariantMap computerProperties() const;

    SupplyDirectory& m_supplies;
    BatteryTimes& m_times;
    Folders m_folders;
    std::unordered_map<RegistryObject, Entry> m_open;
    RegistryObject m_lastHandle = 0;
};

} // namespace quindle
